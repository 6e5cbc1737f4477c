#pragma once

#include "lum_desktop_sdkx/ILayerItems.h"

#include <QAbstractItemModel>

#include <functional>
#include <vector>

class ILayerRegistry;
class ILayerViewer;

/// The layers of a map as a tree of two levels, the topmost first: layers, and below them their
/// items. A check mark shows or hides each. An item is dragged to another place in its layer.
///
/// It holds what `refresh` read last. An index whose item the layer has changed since changes
/// nothing.
class LayerModel final : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Answers null while there is no map.
    using Layers = std::function<ILayerRegistry*()>;

    LayerModel(Layers layers, QObject* parent);

    /// Reads the layers anew. While layers and items are the same, it only updates their texts and
    /// check marks; otherwise it is reset.
    void refresh();
    /// Whether a layer consists of items.
    [[nodiscard]] bool hasItemLayers() const;

    /// The item as it was read; null for a layer and for no index.
    [[nodiscard]] const LayerItem* itemAt(const QModelIndex& index) const;
    /// The index of the item with this id in the layer of this name; none when there is none.
    [[nodiscard]] QModelIndex find(const QString& layer, const QString& id) const;
    /// The name of the layer, or of the layer of the item.
    [[nodiscard]] QString layerOf(const QModelIndex& index) const;

    /// An item where it lives; without `items` when it is not there any more.
    struct Place
    {
        ILayerItems* items = nullptr;
        int index = 0;
    };
    [[nodiscard]] Place placeOf(const QModelIndex& index) const;

    void setOpacity(const QModelIndex& index, double opacity);
    /// \param to the row that the item has afterwards; nothing moves when there is none
    void moveItem(const QModelIndex& index, int to);
    void removeItem(const QModelIndex& index);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row,
                                       int column, const QModelIndex& parent) const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /// The user has changed what the map shows.
    void changed();

private:
    struct Layer
    {
        QString name;
        QString caption;
        bool isVisible = true;
        bool hasItems = false;
        std::vector<LayerItem> items;
    };
    struct Drop
    {
        QModelIndex item;
        int to = 0; ///< the row that it has afterwards
    };

    [[nodiscard]] static Layer read(ILayerViewer& layer);
    [[nodiscard]] bool hasSameRows(const std::vector<Layer>& layers) const;
    [[nodiscard]] LayerItem& itemOf(const QModelIndex& index);
    [[nodiscard]] ILayerViewer* viewerOf(const QModelIndex& index) const;
    /// What dropping there would move; no item when it may not be dropped there.
    [[nodiscard]] Drop dropOf(const QMimeData& data, int row, const QModelIndex& parent) const;

    Layers m_layersOfMap;
    std::vector<Layer> m_layers;
};
