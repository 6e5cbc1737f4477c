#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_sdk/raster/Legend.h"

#include <vector>

class QPointF;
class QRectF;

/// Owns the layers of a map. It must live longer than a worker that paints them.
class LayerRegistry final : public ILayerRegistry
{
public:
    /// Puts a layer on top.
    /// \returns false, and a line in the log, when its name is taken; the layer is deleted then
    bool add(ILayerViewerFactory::Pointer layer);

    [[nodiscard]] ILayerViewer* find(const QString& layerName) const override;
    [[nodiscard]] std::size_t count() const override { return m_layers.size(); }
    [[nodiscard]] ILayerViewer* at(std::size_t index) const override;

    /// The visible layers, from bottom to top.
    [[nodiscard]] std::vector<ILayerViewer*> visibleLayers() const;
    /// The tool tip of the topmost visible layer that has one for this place; empty when none has.
    [[nodiscard]] QString tipAt(const QPointF& map) const;
    /// The properties "attribution" of the visible layers, each once.
    [[nodiscard]] QString attributions() const;
    /// The legend of the topmost visible layer that has one.
    [[nodiscard]] lum::Legend legend() const;
    /// The rectangle around the extents of all visible layers; null when none has a finite extent.
    [[nodiscard]] QRectF visibleExtent() const;

private:
    std::vector<ILayerViewerFactory::Pointer> m_layers;
};
