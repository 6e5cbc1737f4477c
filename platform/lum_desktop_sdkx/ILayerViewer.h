#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/raster/Legend.h"
#include "lum_sdk/Transform.h"

#include <QRectF>
#include <QString>

#include <atomic>
#include <chrono>
#include <string>

class QPainter;

/// What one paint of the map works on. It holds copies, so that a worker thread can paint while the
/// user goes on working.
struct PaintTarget
{
    Transform transform;       ///< of this picture; the map's view may have moved since
    QRectF mapExtent;          ///< full extent of the map's data, map coordinates
    basalt::Dictionary status; ///< the system status as it was when the paint began
    basalt::Dictionary system; ///< the project's coordinate system, as it was then; may be empty
    double pixelRatio = 1;     ///< device pixels to a screen pixel
    const std::atomic<bool>* cancelled = nullptr;
    std::atomic<bool>* hasRest = nullptr; ///< set by `leaveRest`
    /// When the time for this picture is over. Only a layer that can leave a rest looks at it.
    std::chrono::steady_clock::time_point deadline = std::chrono::steady_clock::time_point::max();

    /// True when a newer picture was requested. This one is thrown away then, so that the layer
    /// should return.
    [[nodiscard]] bool isCancelled() const { return cancelled != nullptr && cancelled->load(); }

    /// Says that the layer had to stop at the deadline. The picture is shown as it is, and all
    /// layers paint the same view again, with twice the time. A layer that waits for something
    /// else, such as tiles of a service, redraws the map when that has come instead.
    void leaveRest() const
    {
        if (hasRest != nullptr)
            *hasRest = true;
    }
};

/// A layer of the map. Made with (configuration text, host). The order of the operations is fixed.
///
/// `Paint` may run on a worker thread, but never twice at the same time. All other operations run
/// on the GUI thread. A layer must guard what `Paint` shares with them.
class ILayerViewer
{
public:
    virtual ~ILayerViewer() = default;

    [[nodiscard]] virtual std::string GetName() const = 0; // spelled as registered
    /// The rectangle of the layer's data, map coordinates; null (width and height 0) without data.
    [[nodiscard]] virtual QRectF GetExtent() const = 0;
    /// Hands over the map's own transform, for picking. It outlives the layer.
    virtual void SetTransform(const Transform* transform) = 0;
    /// Called on the GUI thread when a paint is requested, so that the layer can copy what `Paint`
    /// must not read itself. An older paint may still be running.
    virtual void preparePaint() {}
    /// Draws in screen pixels; `view` is the visible part of the map, in map coordinates.
    virtual void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) = 0;
    [[nodiscard]] virtual IDictionary& GetProperties() = 0;
    /// By the property "visible" (default 1).
    [[nodiscard]] virtual bool IsVisible() const = 0;

    /// The tool tip for a place of the map, in the user's language; empty when nothing lies there.
    [[nodiscard]] virtual QString tipAt(const QPointF& /*map*/) const { return {}; }
    /// What the colours of the layer mean, in the user's language; without entries when they need
    /// no word. The map asks for it whenever it draws itself.
    [[nodiscard]] virtual lum::Legend legend() const { return {}; }
};
