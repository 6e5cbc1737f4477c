#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/map/LayerRegistry.h"
#include "lum_desktop_sdkx/map/MapPainter.h"
#include "lum_desktop_sdkx/map/MapPicture.h"
#include "lum_desktop_sdkx/map/Overlay.h"
#include "lum_desktop_sdkx/map/ReactorStack.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QTimer>
#include <QWidget>

#include <array>

class IDesktopHost;

/// The map window. It shows the last picture, moved to the present view, while a worker paints the
/// next one. The overlays are drawn over the picture, and while a document is open a scale bar, a
/// north arrow and the legend of a layer.
class MapWindow final : public QWidget, public IWindowx, public IMapWindow, private IEventHandler
{
    Q_OBJECT

public:
    /// \param config a key list; "reactors" holds the names of the default reactors, separated by
    ///        semicolons or blanks (default "ReactorDefault")
    MapWindow(const char* config, IDesktopHost* host);
    ~MapWindow() override;

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }

    void pan(int fromX, int fromY, int toX, int toY) override;
    void centerOn(double x, double y) override;
    void zoomIn() override;
    void zoomOut() override;
    /// Shows the extent of the data; without one that of the visible layers; without that the place
    /// (0, 0) at 1 m a pixel.
    void zoomAll() override;
    void zoomRect(double left, double top, double right, double bottom) override;
    void zoomAbout(double screenX, double screenY, double factor) override;
    /// An extent without width and height means that there is no data.
    void setExtent(double left, double top, double right, double bottom) override;
    [[nodiscard]] QRectF extent() const override { return m_extent; }
    /// Also sets the cursor back to the arrow.
    bool installReactor(const QString& name) override;
    void installDefaultReactors() override;
    void setMapCursor(const QCursor& cursor) override;
    void redraw() override;
    void redrawSoon() override;
    void refreshOverlay() override;
    [[nodiscard]] const Transform& transform() const override { return m_transform; }
    [[nodiscard]] QRegion uncovered() const override;
    [[nodiscard]] ILayerRegistry& layers() override { return m_layers; }
    ILayerViewer* addLayer(const QString& className, const IDictionary& properties) override;
    [[nodiscard]] IOverlay& overlay(int number) override;
    [[nodiscard]] IHost& host() override;

    /// True when the picture shows the present data and view, and no paint is running or waiting.
    [[nodiscard]] bool isUpToDate() const;

Q_SIGNALS:
    /// A new picture is shown.
    void pictureChanged();

protected:
    /// Shows the tool tip of what lies under the cursor.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void handleEvent(const char* eventName, const char* payload, int reserved) override;
    void announcePosition(const QPointF& screen);
    void showTip(const QPoint& screen);
    /// Shows `extent`. Before the map is seen for the first time, each change of its size shows it
    /// again.
    void fitTo(const QRectF& extent, double margin);
    void onViewMoved();
    void startPaint();
    [[nodiscard]] MapPaintJob makeJob();
    void showPicture(const QImage& picture, const Transform& view);

    struct Fit
    {
        QRectF extent;
        double margin;
    };

    IDesktopHost& m_host;
    basalt::Dictionary m_parameters;
    Transform m_transform; // layers keep a pointer to it
    QRectF m_extent;       // normalised; null while there is no data
    bool m_isSeen = false;
    std::optional<Fit> m_fitUntilSeen;

    LayerRegistry m_layers;
    std::array<Overlay, 3> m_overlays;
    MapPicture m_picture;
    MapPainter m_painter; // after the layers, so that it ends before they do
    QTimer m_paintTimer;
    bool m_isContentStale = true; ///< the picture shows old data, not only an old view
    bool m_isRedrawDue = false;   ///< once the running paint has ended
    int m_boundaryState = 0;      ///< status of the boundary when the last paint was requested
    double m_pixelRatio = 1;      ///< when the last paint was requested

    ReactorStack m_reactors;
    EventSubscription m_subscription;
};
