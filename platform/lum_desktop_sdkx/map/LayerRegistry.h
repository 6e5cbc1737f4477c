#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"

#include <vector>

class QPointF;
class QRectF;

/// The layers of a map, which it owns. Whoever paints them elsewhere has ended before this does.
class LayerRegistry final : public ILayerRegistry
{
public:
    /// Puts a layer on top.
    /// \returns false, and a line in the log, when its name is taken; the layer is gone then
    bool add(ILayerViewerFactory::Pointer layer);

    [[nodiscard]] ILayerViewer* find(const QString& layerName) const override;
    [[nodiscard]] std::size_t count() const override { return m_layers.size(); }
    /// Null when there is no layer of that index.
    [[nodiscard]] ILayerViewer* at(std::size_t index) const override;

    /// The layers to paint, bottom to top.
    [[nodiscard]] std::vector<ILayerViewer*> visibleLayers() const;
    /// What the topmost visible layer that knows says of a place of the map; empty when none does.
    [[nodiscard]] QString tipAt(const QPointF& map) const;
    /// The extent of all visible layers together; null when none has a finite one.
    [[nodiscard]] QRectF visibleExtent() const;

private:
    std::vector<ILayerViewerFactory::Pointer> m_layers;
};
