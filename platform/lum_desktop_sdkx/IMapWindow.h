#pragma once

#include <QString>

class IDictionary;
class IHost;
class ILayerRegistry;
class ILayerViewer;
class IOverlay;
class QCursor;
class QRectF;
class Transform;

/// The map. Found as `IMapWindow` among the windows by the name "DataMap".
class IMapWindow
{
public:
    virtual ~IMapWindow() = default;

    /// Moves the picture from one screen point to another.
    virtual void pan(int fromX, int fromY, int toX, int toY) = 0;
    /// Moves the picture until this place (map coordinates) is in the middle.
    virtual void centerOn(double x, double y) = 0;
    virtual void zoomIn() = 0;
    virtual void zoomOut() = 0;
    /// Shows the full extent.
    virtual void zoomAll() = 0;
    /// Shows a rectangle of map coordinates, normalised or not; one without width and height (a
    /// click with the zoom tool) comes nearer about its place.
    virtual void zoomRect(double left, double top, double right, double bottom) = 0;
    /// Zooms by `factor` about a screen point.
    virtual void zoomAbout(double screenX, double screenY, double factor) = 0;

    /// Hands over the extent of the map's data, map coordinates. The view goes there when it shows
    /// nothing of it; otherwise it stays. What is not finite is refused with a line in the log.
    virtual void setExtent(double left, double top, double right, double bottom) = 0;
    [[nodiscard]] virtual QRectF extent() const = 0;

    /// Installs a mouse handler by its registered name: "ReactorDefault" alone ends the tool in
    /// use, any other takes its place.
    /// \returns false, with the old one in place, when the name is not registered
    virtual bool installReactor(const QString& name) = 0;
    /// The handlers that the layout names for this map, in order.
    virtual void installDefaultReactors() = 0;
    virtual void setMapCursor(const QCursor& cursor) = 0;

    /// Paints the layers anew.
    virtual void redraw() = 0;
    virtual void refreshOverlay() = 0;

    [[nodiscard]] virtual const Transform& transform() const = 0;
    [[nodiscard]] virtual ILayerRegistry& layers() = 0;
    /// Adds a layer of a registered class on top. `properties` holds its "layer_name".
    /// \returns null, and a line in the log, when the class is not registered or the name is taken
    virtual ILayerViewer* addLayer(const QString& className, const IDictionary& properties) = 0;
    /// Overlay by number, 0 or 1; 0 is for tools and highlights.
    [[nodiscard]] virtual IOverlay& overlay(int number) = 0;
    [[nodiscard]] virtual IHost& host() = 0;
};
