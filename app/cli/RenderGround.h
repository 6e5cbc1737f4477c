#pragma once

#include "lum_sdk/raster/BaseMap.h"
#include "protocol/Outcome.h"

#include <QRectF>
#include <QStringList>

#include <memory>
#include <vector>

class QImage;
class Transform;
struct CliArguments;

namespace lum {
class RasterImage;
struct RasterView;
} // namespace lum

/// What lies under the data in a picture: a base map, and overlay images above it.
class RenderGround
{
public:
    RenderGround();
    ~RenderGround();

    /// Finds the base map of "--base-map". Refuses one that is not in the list.
    [[nodiscard]] Outcome choose(const CliArguments& arguments);
    /// Opens the files of "--overlay", for the open project.
    [[nodiscard]] Outcome open(const CliArguments& arguments);

    [[nodiscard]] bool isEmpty() const { return m_overlays.empty() && m_baseMap.name.isEmpty(); }
    /// Around all overlays, map coordinates; null without one.
    [[nodiscard]] QRectF extent() const;

    /// Paints the base map and the overlays in their order, the last on top.
    void paint(const Transform& view, QImage& picture);
    /// Names the source of the base map in the lower right corner.
    void nameSource(QImage& picture) const;

    /// What is missing in the picture, sentences.
    [[nodiscard]] const QStringList& faults() const { return m_faults; }
    /// What else the user should know, sentences.
    [[nodiscard]] const QStringList& notices() const { return m_notices; }

private:
    void paintBaseMap(const lum::RasterView& view, QImage& picture);
    void paintOverlay(lum::RasterImage& overlay, const lum::RasterView& view, QImage& picture);
    void paintFile(lum::RasterImage& file, const lum::RasterView& view, QImage& picture);

    lum::BaseMap m_baseMap; ///< without a name when there is none
    std::vector<std::unique_ptr<lum::RasterImage>> m_overlays;
    QStringList m_faults;
    QStringList m_notices;
};
