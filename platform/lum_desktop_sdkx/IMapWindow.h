#pragma once

#include <QString>

class IDictionary;
class IHost;
class ILayerRegistry;
class ILayerViewer;
class IOverlay;
class QCursor;
class QRectF;
class QRegion;
class Transform;

/// The map. `IWindowRegistry` finds it by the name "DataMap".
class IMapWindow
{
public:
    virtual ~IMapWindow() = default;

    /// Moves the picture so that what is at one screen point comes to the other.
    virtual void pan(int fromX, int fromY, int toX, int toY) = 0;
    /// Moves the picture so that this place (map coordinates) comes to the middle.
    virtual void centerOn(double x, double y) = 0;
    virtual void zoomIn() = 0;
    virtual void zoomOut() = 0;
    /// Shows the full extent.
    virtual void zoomAll() = 0;
    /// Shows a rectangle of map coordinates, normalised or not. One without width and height, as
    /// from a click with the zoom tool, zooms in about its place.
    virtual void zoomRect(double left, double top, double right, double bottom) = 0;
    /// Zooms by `factor` about a screen point.
    virtual void zoomAbout(double screenX, double screenY, double factor) = 0;

    /// Hands over the extent of the map's data, map coordinates. The view moves there when it shows
    /// nothing of the extent. An extent that is not finite is refused with a line in the log.
    virtual void setExtent(double left, double top, double right, double bottom) = 0;
    [[nodiscard]] virtual QRectF extent() const = 0;

    /// Makes a registered mouse handler the tool in use. "ReactorDefault" only ends the tool in
    /// use. \returns false, and keeps the old tool, when the name is not registered
    virtual bool installReactor(const QString& name) = 0;
    /// Installs the mouse handlers that the layout names for this map, in their order.
    virtual void installDefaultReactors() = 0;
    virtual void setMapCursor(const QCursor& cursor) = 0;

    /// Paints the layers anew.
    virtual void redraw() = 0;
    /// The same, but after the paint that is running: for a layer whose picture comes bit by bit,
    /// so that every bit is seen however long a paint takes.
    virtual void redrawSoon() { redraw(); }
    virtual void refreshOverlay() = 0;

    [[nodiscard]] virtual const Transform& transform() const = 0;
    /// The part of the map that dialogs, and the floating window in use, leave free, screen points.
    [[nodiscard]] virtual QRegion uncovered() const = 0;
    [[nodiscard]] virtual ILayerRegistry& layers() = 0;
    /// Adds a layer of a registered class on top. `properties` holds its "layer_name".
    /// \returns null, and a line in the log, when the class is not registered or the name is taken
    virtual ILayerViewer* addLayer(const QString& className, const IDictionary& properties) = 0;
    /// \param number 0 to 2, the last on top of the others; highlights and tools use 0, picked
    /// places
    ///        2
    [[nodiscard]] virtual IOverlay& overlay(int number) = 0;
    [[nodiscard]] virtual IHost& host() = 0;
};
