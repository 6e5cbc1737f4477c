#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/raster/BaseMap.h"

#include <QObject>

#include <memory>
#include <mutex>
#include <optional>

class IDesktopHost;

namespace lum {
class RasterImage;
class TileImage;
} // namespace lum

/// The base map: a road, satellite or terrain map under everything else, which a service delivers
/// in tiles or which lies in a file.
///
/// It is shown while the system status "useGrid" is 1 and a document with a coordinate system is
/// open: the one of the user's base maps that was chosen last. Otherwise nothing is fetched, and
/// nothing is kept. Its property "attribution" names the source of what is shown. What keeps the
/// service from answering is told in the status bar, once.
class RasterLayerImp final : public QObject, public ILayerViewer, private IEventHandler
{
    Q_OBJECT

public:
    /// \param config a key list: "layer_name" (default "RasterLayerImp"), "visible"
    RasterLayerImp(const char* config, IDesktopHost* host);
    ~RasterLayerImp() override;

    [[nodiscard]] std::string GetName() const override;
    /// Always null, since the map shows the survey and not the world.
    [[nodiscard]] QRectF GetExtent() const override { return {}; }
    void SetTransform(const Transform* transform) override;
    void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) override;
    [[nodiscard]] IDictionary& GetProperties() override { return m_properties; }
    [[nodiscard]] bool IsVisible() const override;

private:
    /// Of the two, the one that is shown.
    struct Picture
    {
        std::shared_ptr<lum::TileImage> tiles;
        std::shared_ptr<lum::RasterImage> file;

        [[nodiscard]] QString trouble() const;
    };

    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    void follow();
    void show(const lum::BaseMap& map);
    void showFile(const lum::BaseMap& map);
    void hide();
    void setPicture(Picture picture, const QString& attribution);
    /// What is shown has changed: tells of new trouble, and paints anew.
    void update();
    void tellTrouble();
    void tell(const QString& trouble);
    void redraw();

    IDesktopHost& m_host; // outlives every layer
    basalt::Dictionary m_properties;
    std::optional<lum::BaseMap> m_shown;
    QString m_trouble; ///< as last told

    std::mutex m_mutex;
    Picture m_picture; // changed on the GUI thread only, under the mutex

    EventSubscription m_subscription;
};
