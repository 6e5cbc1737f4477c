#include "lum_desktop_sdkx/frame/LayerModel.h"

#include "lum_desktop_sdkx/frame/LayoutText.h"
#include "lum_desktop_sdkx/ILayerRegistry.h"
#include "lum_desktop_sdkx/ILayerViewer.h"

#include <QIcon>
#include <QMimeData>

#include <algorithm>

namespace {

// The internal id of an index: 0 for a layer, else the row of its layer, counted from 1.
constexpr quintptr kLayerId = 0;

/// The row of the layer, or of the layer of the item.
std::size_t layerRow(const QModelIndex& index)
{
    return index.internalId() == kLayerId ? static_cast<std::size_t>(index.row())
                                          : static_cast<std::size_t>(index.internalId() - 1);
}

const QString kMimeType = QStringLiteral("application/x-layer-item"); // layer, line end, item

} // namespace

LayerModel::LayerModel(Layers layers, QObject* parent)
    : QAbstractItemModel(parent), m_layersOfMap(std::move(layers))
{
}

LayerModel::Layer LayerModel::read(ILayerViewer& viewer)
{
    Layer layer;
    layer.name = QString::fromStdString(viewer.GetName());
    const std::string caption(viewer.GetProperties().text("caption", viewer.GetName()));
    layer.caption = desktop::layoutText(QString::fromStdString(caption));
    layer.isVisible = viewer.IsVisible();
    if (const auto* const items = dynamic_cast<const ILayerItems*>(&viewer)) {
        layer.hasItems = true;
        for (int i = 0; i < items->itemCount(); ++i)
            layer.items.push_back(items->item(i));
    }
    return layer;
}

void LayerModel::refresh()
{
    std::vector<Layer> layers;
    const ILayerRegistry* const registry = m_layersOfMap();
    for (std::size_t i = registry != nullptr ? registry->count() : 0; i-- > 0;) {
        ILayerViewer& viewer = *registry->at(i);
        if (viewer.GetProperties().integer("listed", 1) != 0) // else a command shows and hides it
            layers.push_back(read(viewer));
    }
    if (!hasSameRows(layers)) {
        beginResetModel();
        m_layers = std::move(layers);
        endResetModel();
        return;
    }
    m_layers = std::move(layers);
    const int last = rowCount({}) - 1;
    if (last >= 0)
        Q_EMIT dataChanged(index(0, 0, {}), index(last, 0, {}));
    for (int row = 0; row <= last; ++row) {
        const QModelIndex layer = index(row, 0, {});
        if (const int count = rowCount(layer); count > 0)
            Q_EMIT dataChanged(index(0, 0, layer), index(count - 1, 0, layer));
    }
}

bool LayerModel::hasSameRows(const std::vector<Layer>& layers) const
{
    return std::equal(
        m_layers.begin(), m_layers.end(), layers.begin(), layers.end(),
        [](const Layer& a, const Layer& b) {
            return a.name == b.name && a.hasItems == b.hasItems &&
                   std::equal(a.items.begin(), a.items.end(), b.items.begin(), b.items.end(),
                              [](const LayerItem& c, const LayerItem& d) { return c.id == d.id; });
        });
}

bool LayerModel::hasItemLayers() const
{
    return std::any_of(m_layers.begin(), m_layers.end(),
                       [](const Layer& layer) { return !layer.items.empty(); });
}

// --- places ---

const LayerItem* LayerModel::itemAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.internalId() == kLayerId)
        return nullptr;
    return &m_layers[layerRow(index)].items[static_cast<std::size_t>(index.row())];
}

LayerItem& LayerModel::itemOf(const QModelIndex& index)
{
    return m_layers[layerRow(index)].items[static_cast<std::size_t>(index.row())];
}

QModelIndex LayerModel::find(const QString& layer, const QString& id) const
{
    for (std::size_t row = 0; row < m_layers.size(); ++row) {
        if (m_layers[row].name != layer)
            continue;
        const auto& items = m_layers[row].items;
        const auto found = std::find_if(items.begin(), items.end(),
                                        [&](const LayerItem& item) { return item.id == id; });
        if (found != items.end())
            return createIndex(static_cast<int>(found - items.begin()), 0, row + 1);
    }
    return {};
}

QString LayerModel::layerOf(const QModelIndex& index) const
{
    if (!index.isValid())
        return {};
    return m_layers[layerRow(index)].name;
}

ILayerViewer* LayerModel::viewerOf(const QModelIndex& index) const
{
    const ILayerRegistry* const registry = m_layersOfMap();
    return registry != nullptr && index.isValid() ? registry->find(layerOf(index)) : nullptr;
}

LayerModel::Place LayerModel::placeOf(const QModelIndex& index) const
{
    const LayerItem* const item = itemAt(index);
    auto* const items = dynamic_cast<ILayerItems*>(item != nullptr ? viewerOf(index) : nullptr);
    if (items == nullptr || index.row() >= items->itemCount() ||
        items->item(index.row()).id != item->id)
        return {};
    return {items, index.row()};
}

// --- changes ---

void LayerModel::setOpacity(const QModelIndex& index, double opacity)
{
    const Place place = placeOf(index);
    if (place.items == nullptr)
        return;
    place.items->setItemOpacity(place.index, opacity);
    itemOf(index).opacity = opacity;
    Q_EMIT dataChanged(index, index);
    Q_EMIT changed();
}

void LayerModel::moveItem(const QModelIndex& index, int to)
{
    const Place place = placeOf(index);
    if (place.items == nullptr || to == index.row() || to < 0 || to >= rowCount(index.parent()))
        return;
    const int from = index.row();
    const QModelIndex layer = index.parent();
    auto& items = m_layers[layerRow(index)].items;
    beginMoveRows(layer, from, from, layer, to > from ? to + 1 : to);
    const auto moved = items.begin() + from;
    if (to > from)
        std::rotate(moved, moved + 1, items.begin() + to + 1);
    else
        std::rotate(items.begin() + to, moved, moved + 1);
    endMoveRows();
    place.items->moveItem(from, to);
    Q_EMIT changed();
}

void LayerModel::removeItem(const QModelIndex& index)
{
    const Place place = placeOf(index);
    if (place.items == nullptr)
        return;
    auto& items = m_layers[layerRow(index)].items;
    beginRemoveRows(index.parent(), place.index, place.index);
    items.erase(items.begin() + place.index);
    endRemoveRows();
    place.items->removeItem(place.index);
    Q_EMIT changed();
}

bool LayerModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    ILayerViewer* const viewer = role == Qt::CheckStateRole ? viewerOf(index) : nullptr;
    if (viewer == nullptr)
        return false;
    const bool isVisible = value.toInt() == Qt::Checked;
    if (itemAt(index) == nullptr) {
        viewer->GetProperties().set("visible", isVisible ? "1" : "0");
        m_layers[layerRow(index)].isVisible = isVisible;
    } else {
        const Place place = placeOf(index);
        if (place.items == nullptr)
            return false;
        place.items->showItem(place.index, isVisible);
        itemOf(index).isVisible = isVisible;
    }
    Q_EMIT dataChanged(index, index);
    Q_EMIT changed();
    return true;
}

// --- the tree ---

QModelIndex LayerModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(row, column,
                       parent.isValid() ? static_cast<quintptr>(parent.row()) + 1 : kLayerId);
}

QModelIndex LayerModel::parent(const QModelIndex& child) const
{
    if (!child.isValid() || child.internalId() == kLayerId)
        return {};
    return createIndex(static_cast<int>(child.internalId()) - 1, 0, kLayerId);
}

int LayerModel::rowCount(const QModelIndex& parent) const
{
    if (!parent.isValid())
        return static_cast<int>(m_layers.size());
    if (parent.internalId() != kLayerId)
        return 0;
    return static_cast<int>(m_layers[layerRow(parent)].items.size());
}

int LayerModel::columnCount(const QModelIndex& /*parent*/) const
{
    return 1;
}

QVariant LayerModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const LayerItem* const item = itemAt(index);
    if (item == nullptr) {
        const Layer& layer = m_layers[layerRow(index)];
        if (role == Qt::DisplayRole)
            return layer.caption;
        if (role == Qt::CheckStateRole)
            return layer.isVisible ? Qt::Checked : Qt::Unchecked;
        return {};
    }
    switch (role) {
    case Qt::DisplayRole:
        return item->caption;
    case Qt::CheckStateRole:
        return item->isVisible ? Qt::Checked : Qt::Unchecked;
    case Qt::ToolTipRole:
        return item->fault.isEmpty() ? item->tip : item->fault;
    case Qt::DecorationRole:
        return item->fault.isEmpty() ? QVariant()
                                     : QIcon::fromTheme(QStringLiteral("dialog-warning"));
    default:
        return {};
    }
}

Qt::ItemFlags LayerModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const Qt::ItemFlags all = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable;
    if (itemAt(index) != nullptr)
        return all | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
    const bool hasItems = m_layers[layerRow(index)].hasItems;
    return hasItems ? all | Qt::ItemIsDropEnabled : all;
}

// --- dragging ---

Qt::DropActions LayerModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList LayerModel::mimeTypes() const
{
    return {kMimeType};
}

QMimeData* LayerModel::mimeData(const QModelIndexList& indexes) const
{
    const LayerItem* const item = indexes.isEmpty() ? nullptr : itemAt(indexes.front());
    if (item == nullptr)
        return nullptr;
    auto data = std::make_unique<QMimeData>();
    data->setData(kMimeType, (layerOf(indexes.front()) + QLatin1Char('\n') + item->id).toUtf8());
    return data.release(); // the drag owns it
}

LayerModel::Drop LayerModel::dropOf(const QMimeData& data, int row, const QModelIndex& parent) const
{
    const QString dragged = QString::fromUtf8(data.data(kMimeType));
    const QString layer = dragged.section(QLatin1Char('\n'), 0, 0);
    const QModelIndex item = find(layer, dragged.section(QLatin1Char('\n'), 1));
    if (!item.isValid())
        return {};
    int before = std::max(row, 0); // dropped on the layer itself, it goes on top
    // The line above the next layer is the one below the last item, too.
    if (!parent.isValid() && row == item.parent().row() + 1)
        before = rowCount(item.parent());
    else if (parent != item.parent())
        return {};
    return {item, before > item.row() ? before - 1 : before};
}

bool LayerModel::canDropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int row,
                                 int /*column*/, const QModelIndex& parent) const
{
    return dropOf(*data, row, parent).item.isValid();
}

bool LayerModel::dropMimeData(const QMimeData* data, Qt::DropAction /*action*/, int row,
                              int /*column*/, const QModelIndex& parent)
{
    const Drop drop = dropOf(*data, row, parent);
    if (!drop.item.isValid())
        return false;
    moveItem(drop.item, drop.to);
    return true;
}
