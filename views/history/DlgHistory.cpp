#include "views/history/DlgHistory.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/WaitCursor.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/history/RenamedResults.h"
#include "project/ui/EditSteps.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "views/history/HistoryFilterBar.h"
#include "views/history/PointRestore.h"
#include "views/history/PointVisit.h"
#include "views/history/ShownHistory.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int kWidth = 980;
constexpr int kHeight = 640;
constexpr int kLeastWidth = 640;
constexpr int kLeastHeight = 420;

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

/// Shortens a text at its beginning: of a path, its end tells more.
class EndOfText final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& cell) const override
    {
        QStyledItemDelegate::initStyleOption(option, cell);
        option->textElideMode = Qt::ElideLeft;
    }
};

} // namespace

void DlgHistory::open(IDesktopHost& host, const std::optional<PointName>& point)
{
    static QPointer<DlgHistory> present;
    if (present == nullptr)
        present = new DlgHistory(host, point); // deletes itself when it is closed
    else if (point)
        present->showPoint(*point);
    present->show();
    present->raise();
    present->activateWindow();
}

DlgHistory::DlgHistory(IDesktopHost& host, const std::optional<PointName>& point)
    : Dialog(host.dialogParent()), m_host(host), m_filters(new HistoryFilterBar(this)),
      m_actions(new HistoryActionModel(this)), m_items(new HistoryItemModel(this)),
      m_actionTable(new CustomTableWidget(this)), m_itemTable(new CustomTableWidget(this)),
      m_note(new QLabel(this)), m_counts(new QLabel(this)),
      m_restore(new QAction(tr("&Restore These"), this)),
      m_restoreButton(new QPushButton(m_restore->text(), this)),
      m_closing(*this, host.eventManager()),
      m_subscription(*this, events::kProjectModified, host.eventManager())
{
    setObjectName(QStringLiteral("DlgHistory"));
    setWindowTitle(tr("History"));
    setAttribute(Qt::WA_DeleteOnClose);
    QVBoxLayout* const rows = makeMainLayout();
    rows->addWidget(m_filters);
    addTables(*rows);
    connectTables();
    addButtons(*rows);
    if (point)
        m_filters->setPoint(*point);
    connect(m_filters, &HistoryFilterBar::changed, this, [this] {
        m_isSavedShown = false;
        refresh();
    });
    if (EditSteps* const steps = EditSteps::instance())
        connect(steps, &EditSteps::changed, this, &DlgHistory::refreshLater);
    setMinimumSizeScaled(kLeastWidth, kLeastHeight);
    resize(dpi_scaled(kWidth), dpi_scaled(kHeight));
    rememberSize(objectName());
    moveIntoCorner(); // a chosen point appears in the middle of the map
    refresh();
    m_actionTable->setFocus();
}

void DlgHistory::addTables(QVBoxLayout& rows)
{
    m_actionTable->setObjectName(QStringLiteral("actions"));
    m_actionTable->setModel(m_actions);
    m_actionTable->setSelectionMode(QAbstractItemView::SingleSelection);
    m_actionTable->setEditTriggers(QAbstractItemView::DoubleClicked |
                                   QAbstractItemView::EditKeyPressed);
    m_actionTable->horizontalHeader()->setStretchLastSection(true);
    m_actionTable->setItemDelegateForColumn(HistoryActionModel::File, new EndOfText(this));
    m_itemTable->setObjectName(QStringLiteral("items"));
    m_itemTable->setModel(m_items);
    m_itemTable->horizontalHeader()->setStretchLastSection(true);
    auto* const areas = new QSplitter(Qt::Vertical, this);
    areas->addWidget(m_actionTable);
    areas->addWidget(m_itemTable);
    areas->setChildrenCollapsible(false);
    rows.addWidget(areas, 1);
}

void DlgHistory::connectTables()
{
    m_actions->setReasonHandler([](const HistoryActionModel::Row& row, const QString& reason) {
        const auto& entries = manager().unsavedEdits().entries();
        if (row.unsaved && *row.unsaved < entries.size())
            manager().setReason(entries.size() - 1 - *row.unsaved, reason);
    });
    connect(m_actionTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DlgHistory::showItems);
    connect(m_itemTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DlgHistory::showState);
    connect(m_actionTable->itemDelegate(), &QAbstractItemDelegate::closeEditor, this,
            &DlgHistory::refreshHeld);
    connect(m_actionTable, &CustomTableWidget::contextMenuRequestedAt, this,
            &DlgHistory::showActionMenu);
    connect(m_itemTable, &CustomTableWidget::contextMenuRequestedAt, this,
            &DlgHistory::showItemMenu);
    const auto go = [this](const QModelIndex& cell) {
        PointVisit::select(m_host, m_items->item(cell.row()));
    };
    connect(m_itemTable, &QAbstractItemView::clicked, this, go);
    connect(m_itemTable, &CustomTableWidget::reachedByKey, this, go);
    connect(m_itemTable, &QAbstractItemView::doubleClicked, this, [this](const QModelIndex& cell) {
        PointVisit::zoomTo(m_host, m_items->item(cell.row()));
    });
}

void DlgHistory::addButtons(QVBoxLayout& rows)
{
    for (QLabel* const label : {m_note, m_counts}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    m_restoreButton->setObjectName(QStringLiteral("restore"));
    m_note->setObjectName(QStringLiteral("note"));
    m_counts->setObjectName(QStringLiteral("counts"));
    rows.addWidget(m_note);
    auto* const close = new QPushButton(tr("Close"), this);
    for (QPushButton* const button : {m_restoreButton, close})
        button->setAutoDefault(false); // Enter belongs to the tables
    connect(m_restoreButton, &QPushButton::clicked, m_restore, &QAction::trigger);
    connect(m_restore, &QAction::triggered, this, &DlgHistory::restore);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_counts, 1);
    row->addWidget(m_restoreButton);
    row->addWidget(close);
    rows.addLayout(row);
}

// What a menu is about stands in its entries, since the tables may be filled anew under it.

void DlgHistory::showActionMenu(const QModelIndex& cell, const QPoint& place)
{
    auto* const menu = new QMenu(this);
    const QPersistentModelIndex reason = cell.siblingAtColumn(HistoryActionModel::Reason);
    menu->addAction(tr("&Edit Reason"), this,
                    [this, reason] {
                        if (reason.isValid())
                            m_actionTable->edit(reason);
                    })
        ->setEnabled(m_actions->row(cell.row()).unsaved.has_value());
    menu->addAction(
        tr("&Copy"), m_actionTable, [this] { m_actionTable->copySelection(); }, QKeySequence::Copy);
    popUp(*menu, place);
}

void DlgHistory::showItemMenu(const QModelIndex& cell, const QPoint& place)
{
    auto* const menu = new QMenu(this);
    menu->addAction(m_restore);
    menu->addSeparator();
    const HistoryItem item = m_items->item(cell.row());
    QAction* const life = menu->addAction(tr("&History of This Point"), this,
                                          [this, name = item.name] { showPoint(name); });
    QAction* const map = menu->addAction(tr("Show on the &Map"), this, [this, item] {
        if (ProjectState::hasData())
            PointVisit::zoomTo(m_host, item);
    });
    for (QAction* const action : {life, map})
        action->setEnabled(!item.name.point.empty());
    menu->addSeparator();
    menu->addAction(
        tr("&Copy"), m_itemTable, [this] { m_itemTable->copySelection(); }, QKeySequence::Copy);
    popUp(*menu, place);
}

void DlgHistory::popUp(QMenu& menu, const QPoint& place)
{
    menu.setAttribute(Qt::WA_DeleteOnClose);
    connect(&menu, &QMenu::aboutToHide, this, &DlgHistory::refreshHeld);
    m_menu = &menu;
    menu.popup(place);
}

void DlgHistory::showPoint(const PointName& point)
{
    m_filters->setPoint(point);
}

void DlgHistory::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    if (manager().unsavedEdits().entries().empty()) // as after a save
        m_isSavedShown = false;
    refreshLater();
}

// --- what is shown ---

void DlgHistory::refreshLater()
{
    if (std::exchange(m_isRefreshDue, true))
        return;
    QMetaObject::invokeMethod(this, &DlgHistory::refresh, Qt::QueuedConnection);
}

void DlgHistory::refreshHeld()
{
    if (m_isRefreshHeld)
        refreshLater();
}

bool DlgHistory::isInUse() const
{
    return (m_menu != nullptr && m_menu->isVisible()) ||
           m_actionTable->viewport()->isAncestorOf(QApplication::focusWidget());
}

void DlgHistory::refresh()
{
    m_isRefreshDue = false;
    m_isRefreshHeld = isInUse();
    if (m_isRefreshHeld || !ProjectState::hasData())
        return;
    const WaitCursor waiting;
    const int before = m_actionTable->currentIndex().row();
    const HistoryAction chosen =
        before < 0 ? HistoryAction() : HistoryAction(m_actions->row(before).event.action);
    {
        const QScopedValueRollback<bool> guard(m_isFilling, true);
        readActions();
        chooseAction(m_actions->rowOf(chosen));
    }
    for (const int column :
         {HistoryActionModel::Action, HistoryActionModel::Person, HistoryActionModel::Computer,
          HistoryActionModel::State, HistoryActionModel::Reason})
        m_actionTable->widenColumn(column);
    tellNote(note());
    showItems();
}

/// Those that are not saved, and the saved ones where they are not shown yet: to read them may take
/// seconds.
void DlgHistory::readActions()
{
    const HistoryFilter filter = m_filters->filter();
    m_isLife = filter.point.has_value();
    HistoryActionModel::Rows unsaved = ShownHistory::unsaved(filter);
    m_filters->addChoices(unsaved);
    m_actions->setUnsaved(std::move(unsaved));
    if (std::exchange(m_isSavedShown, true))
        return;
    HistoryActionModel::Rows saved = ShownHistory::saved(filter, m_readNote);
    m_filters->addChoices(saved);
    m_actions->setSaved(std::move(saved));
}

QString DlgHistory::note() const
{
    QStringList notes{m_filters->fault(), m_readNote};
    if (m_actions->rowCount() == 0 && m_filters->isFiltered())
        notes << tr("No action passes the filters.");
    else if (m_actions->rowCount() == 0)
        notes << tr("There is no history yet: it begins with the next change.");
    notes.removeAll(QString());
    return notes.join(QLatin1Char(' '));
}

void DlgHistory::tellNote(const QString& note)
{
    m_note->setText(note);
    m_note->setHidden(note.isEmpty());
}

/// \param row  -1 for the first, or for none where all have their changes below
void DlgHistory::chooseAction(int row)
{
    if (row < 0 && m_isLife)
        m_actionTable->clearSelection();
    else
        m_actionTable->showRow(std::max(row, 0));
}

void DlgHistory::showItems()
{
    if (m_isFilling)
        return;
    const WaitCursor waiting;
    const std::vector<int> chosen = m_actionTable->selectedRows();
    std::optional<std::int64_t> shown;
    QString fault;
    HistoryItemModel::Events events;
    if (m_isLife) {
        for (int row = 0; row < m_actions->rowCount(); ++row)
            events.push_back(m_actions->row(row).event);
    } else if (!chosen.empty()) {
        const HistoryActionModel::Row& row = m_actions->row(chosen.front());
        if (!row.unsaved)
            shown = row.event.action.id;
        if (shown && shown == m_itemsOf)
            return showState(); // a saved action stays as it is
        events.push_back(ShownHistory::eventOf(row, fault));
    }
    m_itemsOf = fault.isEmpty() ? shown : std::nullopt;
    hideColumns();
    m_items->setEvents(std::move(events));
    using Column = HistoryItemModel::Column;
    for (const int column : {Column::Action, Column::Data, Column::Line, Column::Point,
                             Column::Change, Column::Field}) // another action has longer texts
        m_itemTable->widenColumn(column);
    if (!fault.isEmpty())
        tellNote(fault);
    if (m_isLife && !chosen.empty())
        m_itemTable->showRow(m_items->firstRowOf(static_cast<std::size_t>(chosen.front())));
    showState();
}

void DlgHistory::hideColumns()
{
    const auto caption = [this](int column) {
        return m_items->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    };
    using Column = HistoryItemModel::Column;
    m_itemTable->setHiddenColumns(
        m_isLife ? QStringList{caption(Column::Line), caption(Column::Point)}
                 : QStringList{caption(Column::Time), caption(Column::Action)});
}

void DlgHistory::showState()
{
    m_counts->setText(tr("Actions: %1, not saved yet: %2. Changes: %3, selected: %4")
                          .arg(lum::groupedNumber(m_actions->rowCount()),
                               lum::groupedNumber(m_actions->unsavedCount()),
                               lum::groupedNumber(m_items->rowCount()),
                               lum::groupedNumber(m_itemTable->selectedRowCount())));
    const std::vector<int> chosen = m_itemTable->selectedRows();
    const bool isOne = !chosen.empty() && m_items->areTogether(chosen.front(), chosen.back());
    m_restore->setEnabled(isOne);
    m_restoreButton->setEnabled(isOne);
    m_restoreButton->setToolTip(
        isOne ? tr("Put the points back as they were before the action. It can be undone.")
              : tr("Select changes in the lower table, all of one action, to put their points "
                   "back."));
}

// --- what is done ---

/// Of the action that a change belongs to.
std::vector<HistoryItem> DlgHistory::allItems(int change, QString& fault) const
{
    const std::size_t event = m_items->eventAt(change);
    return m_isLife ? ShownHistory::eventOf(m_actions->row(static_cast<int>(event)), fault).items
                    : m_items->items(event);
}

void DlgHistory::restore()
{
    const std::vector<int> chosen = m_itemTable->selectedRows();
    if (chosen.empty() || !ProjectState::hasData())
        return;
    std::vector<HistoryItem> items;
    items.reserve(chosen.size());
    for (const int row : chosen)
        items.push_back(m_items->item(row));
    const auto holds = [&](HistoryData kind) {
        return std::ranges::any_of(items,
                                   [&](const HistoryItem& item) { return item.data == kind; });
    };
    PointRestore result;
    {
        const WaitCursor waiting;
        const HistoryAction& action = m_items->action(chosen.front());
        QString fault;
        if (isRenaming(action))
            items = withRenamed(action, allItems(chosen.front(), fault), items);
        if (!fault.isEmpty())
            return tellNote(fault);
        result = restorePoints(action, items);
    }
    const auto publish = [&](HistoryData kind, std::initializer_list<const char*> names) {
        for (const char* name : names) {
            if (result.restored > 0 && holds(kind))
                m_host.eventManager().publish(name, nullptr, 0);
        }
    };
    publish(HistoryData::Design, {events::kRefreshDesignLayer, events::kRefreshDesignTable});
    publish(HistoryData::Results, {events::kRefreshSurveyTable, events::kRefreshSurveyLayer});
    m_host.tell(result.told());
    m_itemTable->setFocus(); // else the button gives it to the next one, which closes the window
    refreshLater();
}
