#include "lum_desktop_sdkx/frame/LayerWindow.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/frame/DlgItemProperties.h"
#include "lum_desktop_sdkx/frame/LayerModel.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/PlatformEvents.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QSignalBlocker>
#include <QSlider>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int kMargin = 6;
constexpr int kOpacities[] = {100, 75, 50, 25};

/// Rows with some room between them.
class RowDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index) + QSize(0, dpi_scaled(4));
    }
};

int percentOf(double opacity)
{
    return static_cast<int>(std::lround(opacity * 100));
}

QString percentText(int percent)
{
    return QStringLiteral("%1 %").arg(percent);
}

/// Layer and item of each item in the list, as "layer/item".
QStringList itemNames(const LayerModel& model)
{
    QStringList names;
    for (int row = 0; row < model.rowCount({}); ++row) {
        const QModelIndex layer = model.index(row, 0, {});
        for (int i = 0; i < model.rowCount(layer); ++i)
            names << model.layerOf(layer) + QLatin1Char('/') +
                         model.itemAt(model.index(i, 0, layer))->id;
    }
    return names;
}

} // namespace

LayerWindow::LayerWindow(const char* config, IDesktopHost* host)
    : m_host(*host), m_parameters(desktop::componentParameters(config)),
      m_subscription(*this,
                     lum::eventNames({events::kSettingViewFinished, events::kLayerItemsChanged}),
                     host->eventManager()),
      m_model(new LayerModel(
          [this] {
              IMapWindow* const window = map();
              return window != nullptr ? &window->layers() : nullptr;
          },
          this)),
      m_view(new QTreeView(this)), m_opacityRow(new QWidget(this)),
      m_opacity(new QSlider(Qt::Horizontal, m_opacityRow)), m_percent(new QLabel(m_opacityRow))
{
    makeView();
    makeOpacityRow();
    makeActions();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_opacityRow);
    setFocusProxy(m_view);
    connect(m_model, &LayerModel::changed, this, [this] {
        if (IMapWindow* const window = map())
            window->redraw();
    });
    connect(m_model, &LayerModel::dataChanged, this, &LayerWindow::showCurrent);
    showCurrent();
}

void LayerWindow::makeView()
{
    m_view->setModel(m_model);
    m_view->setItemDelegate(new RowDelegate(m_view));
    m_view->setFrameStyle(QFrame::NoFrame);
    m_view->setHeaderHidden(true);
    m_view->setSelectionMode(QAbstractItemView::SingleSelection);
    m_view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_view->setDragDropMode(QAbstractItemView::InternalMove);
    m_view->setRootIsDecorated(false); // a layer without items is no branch
    m_view->setItemsExpandable(false);
    m_view->setIndentation(dpi_scaled(18));
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &LayerWindow::openMenu);
    connect(m_view, &QAbstractItemView::doubleClicked, this, &LayerWindow::doubleClicked);
    connect(m_view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &LayerWindow::showCurrent);
}

void LayerWindow::makeOpacityRow()
{
    auto* const label = new QLabel(tr("&Opacity"), m_opacityRow);
    m_opacity->setRange(0, 100);
    m_opacity->setSingleStep(5);
    m_opacity->setPageStep(25);
    label->setBuddy(m_opacity);
    m_percent->setMinimumWidth(m_percent->fontMetrics().horizontalAdvance(percentText(100)));
    m_percent->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(m_opacity, &QSlider::valueChanged, this, &LayerWindow::setOpacity);

    auto* const layout = new QHBoxLayout(m_opacityRow);
    const int margin = dpi_scaled(kMargin);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->addWidget(label);
    layout->addWidget(m_opacity, 1);
    layout->addWidget(m_percent);
    m_opacityRow->hide();
}

QAction* LayerWindow::addAction(const char* icon, const QString& text, const QKeySequence& key,
                                void (LayerWindow::*slot)())
{
    auto* const action = new QAction(QIcon::fromTheme(QLatin1String(icon)), text, m_view);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut); // the slider has keys of its own
    connect(action, &QAction::triggered, this, slot);
    m_view->addAction(action);
    return action;
}

void LayerWindow::makeActions()
{
    m_zoom =
        addAction("zoom-fit-best", tr("&Zoom to Item"), Qt::Key_Return, &LayerWindow::zoomToItem);
    m_zoom->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    m_raise = addAction("go-up", tr("Move Item &Up"), QKeySequence(QStringLiteral("Ctrl+Up")),
                        &LayerWindow::raiseItem);
    m_lower = addAction("go-down", tr("Move Item &Down"), QKeySequence(QStringLiteral("Ctrl+Down")),
                        &LayerWindow::lowerItem);
    m_remove = addAction("edit-delete", tr("&Remove Item"), QKeySequence::Delete,
                         &LayerWindow::removeItem);
    m_properties =
        addAction("document-properties", tr("Item &Properties"),
                  QKeySequence(QStringLiteral("Alt+Return")), &LayerWindow::showProperties);
}

void LayerWindow::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    // Not at once: the assistant may add more layers after this event, a layer more items.
    QMetaObject::invokeMethod(this, &LayerWindow::rebuild, Qt::QueuedConnection);
}

void LayerWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    rebuild();
}

void LayerWindow::rebuild()
{
    const QModelIndex before = current();
    const QString layer = m_model->layerOf(before);
    const LayerItem* const item = m_model->itemAt(before);
    const QString id = item != nullptr ? item->id : QString();
    const QStringList names = itemNames(*m_model);

    m_model->refresh();
    m_view->expandAll();
    if (!current().isValid())
        m_view->setCurrentIndex(m_model->find(layer, id));
    selectNewItem(names);
    m_opacityRow->setVisible(m_model->hasItemLayers());
    showCurrent();
}

/// What the user has just added is what he will want to change.
void LayerWindow::selectNewItem(const QStringList& before)
{
    for (const QString& name : itemNames(*m_model)) {
        if (before.contains(name))
            continue;
        m_view->setCurrentIndex(
            m_model->find(name.section(QLatin1Char('/'), 0, 0), name.section(QLatin1Char('/'), 1)));
        return;
    }
}

void LayerWindow::showCurrent()
{
    const QModelIndex index = current();
    const LayerItem* const item = m_model->itemAt(index);
    const bool isItem = item != nullptr;
    m_zoom->setEnabled(isItem && item->fault.isEmpty());
    m_raise->setEnabled(isItem && index.row() > 0);
    m_lower->setEnabled(isItem && index.row() + 1 < m_model->rowCount(index.parent()));
    m_remove->setEnabled(isItem);
    m_properties->setEnabled(isItem);
    m_opacityRow->setEnabled(isItem);
    const QSignalBlocker quiet(m_opacity);
    m_opacity->setValue(isItem ? percentOf(item->opacity) : 100);
    m_percent->setText(percentText(m_opacity->value()));
}

// --- menu ---

void LayerWindow::openMenu(const QPoint& place)
{
    if (m_model->itemAt(current()) == nullptr)
        return;
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(m_zoom);
    addOpacities(*menu);
    menu->addActions({m_raise, m_lower});
    menu->addSeparator();
    addItemActions(*menu);
    menu->addActions({m_remove, m_properties});
    // The menu key asks for a menu in the middle of the list.
    const QModelIndex clicked = m_view->indexAt(place);
    const QPoint shown = clicked == current() ? place : m_view->visualRect(current()).center();
    menu->popup(m_view->viewport()->mapToGlobal(shown));
}

void LayerWindow::addOpacities(QMenu& menu)
{
    QMenu* const opacities =
        menu.addMenu(QIcon::fromTheme(QStringLiteral("edit-opacity")), tr("&Opacity"));
    for (const int percent : kOpacities) {
        QAction* const action = opacities->addAction(
            percentText(percent), this, [this, percent] { m_opacity->setValue(percent); });
        action->setCheckable(true);
        action->setChecked(percent == m_opacity->value());
    }
}

void LayerWindow::addItemActions(QMenu& menu)
{
    const LayerModel::Place place = m_model->placeOf(current());
    const QStringList texts =
        place.items != nullptr ? place.items->itemActions(place.index) : QStringList();
    for (int i = 0; i < texts.size(); ++i)
        menu.addAction(texts[i], this, [this, i, index = QPersistentModelIndex(current())] {
            const LayerModel::Place now = m_model->placeOf(index);
            if (now.items != nullptr)
                now.items->runItemAction(now.index, i);
        });
}

// --- what the user does with an item ---

void LayerWindow::zoomToItem()
{
    const LayerModel::Place place = m_model->placeOf(current());
    IMapWindow* const window = map();
    if (place.items == nullptr || window == nullptr)
        return;
    const QRectF extent = place.items->itemExtent(place.index);
    if (!extent.isNull())
        window->zoomRect(extent.left(), extent.top(), extent.right(), extent.bottom());
}

void LayerWindow::raiseItem()
{
    m_model->moveItem(current(), current().row() - 1);
    showCurrent();
}

void LayerWindow::lowerItem()
{
    m_model->moveItem(current(), current().row() + 1);
    showCurrent();
}

void LayerWindow::removeItem()
{
    const LayerItem* const item = m_model->itemAt(current());
    if (item == nullptr)
        return;
    const QString caption = item->caption;
    m_model->removeItem(current());
    m_host.tell(tr("\"%1\" was removed from the map. Its file stays as it is.").arg(caption));
    m_opacityRow->setVisible(m_model->hasItemLayers());
    showCurrent();
}

void LayerWindow::showProperties()
{
    const LayerModel::Place place = m_model->placeOf(current());
    if (place.items == nullptr)
        return;
    DlgItemProperties(m_host.dialogParent(), m_model->itemAt(current())->caption,
                      place.items->itemProperties(place.index))
        .exec();
}

void LayerWindow::setOpacity(int percent)
{
    m_percent->setText(percentText(percent));
    m_model->setOpacity(current(), percent / 100.0);
}

void LayerWindow::doubleClicked(const QModelIndex& index)
{
    // Two quick clicks on the check mark hide and show the item.
    QStyleOptionViewItem option;
    option.initFrom(m_view);
    option.rect = m_view->visualRect(index);
    option.features = QStyleOptionViewItem::HasCheckIndicator;
    const QRect mark =
        m_view->style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, m_view);
    if (!mark.contains(m_view->viewport()->mapFromGlobal(QCursor::pos())))
        zoomToItem();
}

QModelIndex LayerWindow::current() const
{
    return m_view->currentIndex();
}

IMapWindow* LayerWindow::map() const
{
    return m_host.windows().findAs<IMapWindow>(QStringLiteral("DataMap"));
}
