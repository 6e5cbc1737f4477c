#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/Transform.h"

#include <QRectF>
#include <QString>

#include <atomic>
#include <string>

class QPainter;

/// What one paint of the map works on: a picture of the moment, so that it can run on a worker
/// thread while the user goes on.
struct PaintTarget
{
    Transform transform;       ///< of this picture; the live one may have moved on
    QRectF mapExtent;          ///< full extent of the map's data, map coordinates
    basalt::Dictionary status; ///< the system status as it was when the paint began
    const std::atomic<bool>* cancelled = nullptr;

    /// True when a newer picture has been asked for; what is painted from then on is thrown away.
    [[nodiscard]] bool isCancelled() const { return cancelled != nullptr && cancelled->load(); }
};

/// A layer of the map, by this order of operations. Made with (configuration text, host).
///
/// `Paint` may run on another thread than everything else, never twice at the same time; a layer
/// guards what it shares with it.
class ILayerViewer
{
public:
    virtual ~ILayerViewer() = default;

    [[nodiscard]] virtual std::string GetName() const = 0; // spelled as registered
    /// Map coordinates; null (width and height 0) when there is nothing to show.
    [[nodiscard]] virtual QRectF GetExtent() const = 0;
    /// The map's live transform, for picking on the GUI thread. It outlives the layer.
    virtual void SetTransform(const Transform* transform) = 0;
    /// Called on the GUI thread whenever a paint is asked for: the moment to read what belongs to
    /// that thread. An older paint may still be running.
    virtual void preparePaint() {}
    /// Draws in screen pixels; `view` is the visible part of the map, in map coordinates.
    virtual void Paint(const PaintTarget& target, const QRectF& view, QPainter& painter) = 0;
    [[nodiscard]] virtual IDictionary& GetProperties() = 0;
    /// By the property "visible" (default 1).
    [[nodiscard]] virtual bool IsVisible() const = 0;

    /// What lies under the resting cursor, in the user's words; empty when nothing does.
    [[nodiscard]] virtual QString tipAt(const QPointF& /*map*/) const { return {}; }
};
