#include "lum_desktop_sdkx/map/LayerRegistry.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_sdk/Text.h"
#include "lum_sdk/Transform.h"

#include <QStringList>

#include <algorithm>

namespace {

/// Counts a rectangle without width or height, which `QRectF::united` does not.
QRectF unitedArea(const QRectF& a, const QRectF& b)
{
    return {QPointF(std::min(a.left(), b.left()), std::min(a.top(), b.top())),
            QPointF(std::max(a.right(), b.right()), std::max(a.bottom(), b.bottom()))};
}

} // namespace

bool LayerRegistry::add(ILayerViewerFactory::Pointer layer)
{
    const std::string name = layer->GetName();
    if (find(QString::fromStdString(name)) != nullptr) {
        basalt::logError("The map has a layer \"" + name + "\" already; the new one is left out");
        return false;
    }
    m_layers.push_back(std::move(layer));
    return true;
}

ILayerViewer* LayerRegistry::find(const QString& layerName) const
{
    const std::string name = layerName.toStdString();
    for (const auto& layer : m_layers) {
        if (layer->GetName() == name)
            return layer.get();
    }
    return nullptr;
}

ILayerViewer* LayerRegistry::at(std::size_t index) const
{
    return index < m_layers.size() ? m_layers[index].get() : nullptr;
}

std::vector<ILayerViewer*> LayerRegistry::visibleLayers() const
{
    std::vector<ILayerViewer*> visible;
    for (const auto& layer : m_layers) {
        if (layer->IsVisible())
            visible.push_back(layer.get());
    }
    return visible;
}

QRectF LayerRegistry::visibleExtent() const
{
    QRectF all;
    for (const ILayerViewer* layer : visibleLayers()) {
        const QRectF extent = layer->GetExtent().normalized();
        if (extent.isNull() || !lum::isFinite(extent))
            continue;
        all = all.isNull() ? extent : unitedArea(all, extent);
    }
    return all;
}

QString LayerRegistry::tipAt(const QPointF& map) const
{
    const std::vector<ILayerViewer*> layers = visibleLayers();
    for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
        QString tip = (*layer)->tipAt(map);
        if (!tip.isEmpty())
            return tip;
    }
    return {};
}

QString LayerRegistry::attributions() const
{
    QStringList named;
    for (ILayerViewer* layer : visibleLayers()) {
        const QString attribution = lum::toQString(layer->GetProperties().text("attribution"));
        if (!attribution.isEmpty() && !named.contains(attribution))
            named.append(attribution);
    }
    return named.join(QStringLiteral(" | "));
}

lum::Legend LayerRegistry::legend() const
{
    const std::vector<ILayerViewer*> layers = visibleLayers();
    for (auto layer = layers.rbegin(); layer != layers.rend(); ++layer) {
        lum::Legend legend = (*layer)->legend();
        if (!legend.entries.empty())
            return legend;
    }
    return {};
}
