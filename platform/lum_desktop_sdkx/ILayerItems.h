#pragma once

#include <QPair>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <QVector>

/// One item of a layer, such as a picture, as a list shows it.
struct LayerItem
{
    QString id = {};      ///< unique in its layer
    QString caption = {}; ///< a short name
    QString tip = {};     ///< says more, such as the whole path
    QString fault = {};   ///< why it cannot be shown, a sentence; empty when it can
    bool isVisible = true;
    double opacity = 1; ///< 0 to 1

    bool operator==(const LayerItem&) const = default;
};

/// A layer that consists of items, which the user shows, hides, orders and removes one by one. An
/// `ILayerViewer` implements it, too. The topmost item has the index 0. All of it runs on the GUI
/// thread.
///
/// Whoever changes an item paints the map anew. When items come, go or change otherwise, the layer
/// publishes "ON_LAYER_ITEMS_CHANGED".
class ILayerItems
{
public:
    virtual ~ILayerItems() = default;

    [[nodiscard]] virtual int itemCount() const = 0;
    [[nodiscard]] virtual LayerItem item(int index) const = 0;

    virtual void showItem(int index, bool isVisible) = 0;
    virtual void setItemOpacity(int index, double opacity) = 0;
    /// \param to the index that the item has afterwards
    virtual void moveItem(int from, int to) = 0;
    virtual void removeItem(int index) = 0;

    /// Map coordinates; null for an item that cannot be shown.
    [[nodiscard]] virtual QRectF itemExtent(int index) const = 0;
    /// Captions with their values, for a properties box.
    [[nodiscard]] virtual QVector<QPair<QString, QString>> itemProperties(int index) const = 0;

    /// What else can be done with this item now, as entries of a menu.
    [[nodiscard]] virtual QStringList itemActions(int /*index*/) const { return {}; }
    /// \param action an index in `itemActions`
    virtual void runItemAction(int /*index*/, int /*action*/) {}
};
