#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/raster/BaseMap.h"

#include <QRectF>
#include <QStringList>

#include <atomic>
#include <memory>
#include <vector>

class QImage;
class Transform;

namespace lum {
class RasterImage;
class TileImage;
struct RasterView;
} // namespace lum

/// What lies under the data in a picture: a base map, and overlay images above it. Complete and
/// waited for, unlike the layers of the map window. For one thread at a time.
class MapGround
{
public:
    /// \param system the project's coordinate system
    explicit MapGround(const IDictionary& system);
    ~MapGround();

    /// \param map without a fault
    void setBaseMap(const lum::BaseMap& map) { m_baseMap = map; }
    /// Puts an image on top.
    /// \returns an empty text, or why it cannot be shown
    [[nodiscard]] QString addOverlay(const QString& file, double opacity = 1);

    [[nodiscard]] bool isEmpty() const { return m_overlays.empty() && m_baseMap.name.isEmpty(); }
    /// Around all overlays, map coordinates; null without one.
    [[nodiscard]] QRectF extent() const;

    /// Paints the base map and the overlays in their order, the last on top. The picture may be a
    /// part of a larger one; its ratio of device pixels counts.
    /// \param cancelled true ends it soon; may be null
    void paint(const Transform& view, QImage& picture,
               const std::atomic<bool>* cancelled = nullptr);
    /// Names the source of the base map; empty when it needs none.
    [[nodiscard]] QString attribution() const { return m_baseMap.attribution; }

    /// What is missing in the pictures so far, sentences. Forgets it.
    QStringList takeFaults();
    /// The overlays beside this part of the map, a sentence each.
    [[nodiscard]] QStringList overlaysBeside(const QRectF& extent) const;

private:
    struct Overlay
    {
        std::unique_ptr<lum::RasterImage> image;
        double opacity;
    };

    void paintBaseMap(const lum::RasterView& view, QImage& picture);
    void paintTiles(lum::RasterView view, QImage& picture);
    /// Waits for all tiles of a picture, or notes why some are missing.
    void fetchTiles(const lum::RasterView& view);
    void paintFile(lum::RasterImage& file, const lum::RasterView& view, QImage& picture,
                   double opacity = 1);
    void note(const QString& fault);

    basalt::Dictionary m_system;
    lum::BaseMap m_baseMap; ///< without a name when there is none
    std::unique_ptr<lum::TileImage> m_tiles;
    std::unique_ptr<lum::RasterImage> m_baseFile;
    std::vector<Overlay> m_overlays;
    QStringList m_faults;
};
