#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QWidget>

#include <utility>

class IDesktopHost;
class IMapWindow;
class LayerModel;
class QAction;
class QKeySequence;
class QLabel;
class QMenu;
class QModelIndex;
class QSlider;
class QTreeView;

/// Lists the layers of the map "DataMap", the topmost first, and below a layer its items. A check
/// mark shows or hides each. Items have an opacity, which a slider below the list sets, and a menu
/// with keys: zoom to, order, remove, properties. They are dragged into another order, too.
class LayerWindow final : public QWidget, public IWindowx, public IEventHandler
{
    Q_OBJECT

public:
    LayerWindow(const char* config, IDesktopHost* host);

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void makeActions();
    QAction* addAction(const char* icon, const QString& text, const QKeySequence& key,
                       void (LayerWindow::*slot)());
    void makeView();
    void makeOpacityRow();

    void rebuild();
    void selectNewItem(const QStringList& before);
    void showCurrent();
    void openMenu(const QPoint& place);
    void addOpacities(QMenu& menu);
    void addItemActions(QMenu& menu);

    void zoomToItem();
    void raiseItem();
    void lowerItem();
    void removeItem();
    void showProperties();
    void setOpacity(int percent);
    void doubleClicked(const QModelIndex& index);

    [[nodiscard]] QModelIndex current() const;
    [[nodiscard]] IMapWindow* map() const;

    IDesktopHost& m_host; // outlives every window
    basalt::Dictionary m_parameters;
    EventSubscription m_subscription;
    LayerModel* m_model;
    QTreeView* m_view;
    QWidget* m_opacityRow;
    QSlider* m_opacity;
    QLabel* m_percent;
    QAction* m_zoom = nullptr;
    QAction* m_raise = nullptr;
    QAction* m_lower = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_properties = nullptr;
};
