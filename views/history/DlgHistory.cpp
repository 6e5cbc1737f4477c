#include "views/history/DlgHistory.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "model/PointNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "project/ui/EditSteps.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "views/history/HistoryFilterBar.h"
#include "views/history/PointRestore.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QScopedValueRollback>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kTypingMs = 200;
constexpr int kWidth = 980;
constexpr int kHeight = 640;
constexpr int kLeastWidth = 640;
constexpr int kLeastHeight = 420;

DataProcessDataManager& manager()
{
    return DataProcessDataManager::instance();
}

/// Whether an action passes all of a filter but its point.
bool passes(const HistoryFilter& filter, const HistoryAction& action)
{
    const QDate day = action.time.toLocalTime().date();
    return (filter.person.isEmpty() || filter.person == action.person) &&
           (filter.kind.empty() || filter.kind == action.kind) &&
           (!filter.from.isValid() || day >= filter.from) &&
           (!filter.to.isValid() || day <= filter.to);
}

/// The user waits while it lives.
class Waiting
{
public:
    Waiting() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~Waiting() { QGuiApplication::restoreOverrideCursor(); }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;
};

QString toldFault(const Outcome& outcome)
{
    if (outcome.isDone())
        return {};
    basalt::logError(outcome.detail());
    return outcome.text();
}

} // namespace

DlgHistory& DlgHistory::open(IDesktopHost& host)
{
    static QPointer<DlgHistory> present;
    if (present == nullptr)
        present = new DlgHistory(host); // deletes itself when it is closed
    present->show();
    present->raise();
    present->activateWindow();
    return *present;
}

DlgHistory::DlgHistory(IDesktopHost& host)
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
    addButtons(*rows);
    addActionMenu();
    addItemMenu();
    connect(m_filters, &HistoryFilterBar::changed, this, &DlgHistory::refresh);
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
    m_itemTable->setObjectName(QStringLiteral("items"));
    m_itemTable->setModel(m_items);
    m_itemTable->horizontalHeader()->setStretchLastSection(true);
    auto* const areas = new QSplitter(Qt::Vertical, this);
    areas->addWidget(m_actionTable);
    areas->addWidget(m_itemTable);
    areas->setChildrenCollapsible(false);
    rows.addWidget(areas, 1);

    m_actions->setReasonHandler([](const HistoryActionModel::Row& row, const QString& reason) {
        const auto& entries = manager().unsavedEdits().entries();
        if (row.unsaved && *row.unsaved < entries.size())
            manager().setReason(entries.size() - 1 - *row.unsaved, reason);
    });
    connect(m_actionTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DlgHistory::showItems);
    connect(m_itemTable->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &DlgHistory::showState);
    const auto go = [this](const QModelIndex& cell) { selectPoint(cell.row()); };
    connect(m_itemTable, &QAbstractItemView::clicked, this, go);
    connect(m_itemTable, &CustomTableWidget::reachedByKey, this, go);
    connect(m_itemTable, &QAbstractItemView::doubleClicked, this,
            [this](const QModelIndex& cell) { zoomToPoint(cell.row()); });
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

void DlgHistory::addActionMenu()
{
    auto* const menu = new QMenu(m_actionTable);
    QAction* const reason = menu->addAction(tr("&Edit Reason"), this, [this] {
        m_actionTable->edit(
            m_actionTable->currentIndex().siblingAtColumn(HistoryActionModel::Reason));
    });
    menu->addAction(
        tr("&Copy"), m_actionTable, [this] { m_actionTable->copySelection(); }, QKeySequence::Copy);
    connect(m_actionTable, &CustomTableWidget::contextMenuRequestedAt, menu,
            [this, menu, reason](const QModelIndex& cell, const QPoint& place) {
                reason->setEnabled(m_actions->row(cell.row()).unsaved.has_value());
                menu->popup(place);
            });
}

void DlgHistory::addItemMenu()
{
    auto* const menu = new QMenu(m_itemTable);
    menu->addAction(m_restore);
    menu->addSeparator();
    QAction* const life = menu->addAction(tr("&History of This Point"), this, [this] {
        showPoint(m_items->item(m_itemTable->currentIndex().row()).name);
    });
    QAction* const map = menu->addAction(
        tr("Show on the &Map"), this, [this] { zoomToPoint(m_itemTable->currentIndex().row()); });
    menu->addSeparator();
    menu->addAction(
        tr("&Copy"), m_itemTable, [this] { m_itemTable->copySelection(); }, QKeySequence::Copy);
    connect(m_itemTable, &CustomTableWidget::contextMenuRequestedAt, menu,
            [this, menu, life, map](const QModelIndex& cell, const QPoint& place) {
                const bool isPoint = !m_items->item(cell.row()).name.point.empty();
                life->setEnabled(isPoint);
                map->setEnabled(isPoint);
                menu->popup(place);
            });
}

void DlgHistory::showPoint(const PointName& point)
{
    m_filters->setPoint(point);
}

void DlgHistory::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    refreshLater();
}

// --- what is shown ---

void DlgHistory::refreshLater()
{
    if (std::exchange(m_isRefreshDue, true))
        return;
    QMetaObject::invokeMethod(this, &DlgHistory::refresh, Qt::QueuedConnection);
}

void DlgHistory::refresh()
{
    m_isRefreshDue = false;
    if (!ProjectState::hasData())
        return;
    if (m_actionTable->viewport()->isAncestorOf(QApplication::focusWidget())) {
        m_isRefreshDue = true; // a reason is being typed, which a refresh would drop
        QTimer::singleShot(kTypingMs, this, &DlgHistory::refresh);
        return;
    }
    const Waiting waiting;
    const HistoryFilter filter = m_filters->filter();
    Rows rows;
    addUnsaved(filter, rows);
    const QString note = addSaved(filter, rows);
    QStringList persons;
    for (const HistoryActionModel::Row& row : rows) {
        if (persons.isEmpty() || persons.last() != row.event.action.person)
            persons << row.event.action.person;
    }
    persons.removeDuplicates();
    m_filters->addPersons(persons);

    const int before = m_actionTable->currentIndex().row();
    const HistoryAction chosen =
        before < 0 ? HistoryAction() : HistoryAction(m_actions->row(before).event.action);
    {
        const QScopedValueRollback<bool> guard(m_isFilling, true);
        m_isLife = filter.point.has_value();
        m_actions->setRows(std::move(rows));
        chooseAction(m_actions->rowOf(chosen));
    }
    for (const int column :
         {HistoryActionModel::Action, HistoryActionModel::Person, HistoryActionModel::Computer,
          HistoryActionModel::State, HistoryActionModel::Reason})
        m_actionTable->widenColumn(column);
    tellNote(noteOf(note));
    showItems();
}

void DlgHistory::addUnsaved(const HistoryFilter& filter, Rows& rows) const
{
    const UnsavedHistory history = manager().unsavedHistory();
    std::vector<HistoryAction> actions = history.actions();
    std::vector<std::vector<HistoryItem>> lives;
    if (filter.point)
        lives = history.life(*filter.point);
    for (std::size_t i = 0; i < actions.size(); ++i) {
        HistoryActionModel::Row row;
        if (filter.point)
            row.event.items = std::move(lives[i]);
        if (!passes(filter, actions[i]) || (filter.point && row.event.items.empty()))
            continue;
        row.event.action = std::move(actions[i]);
        row.unsaved = i;
        rows.push_back(std::move(row));
    }
}

QString DlgHistory::addSaved(const HistoryFilter& filter, Rows& rows)
{
    HistoryReader reader = manager().history();
    std::vector<HistoryReader::Event> events;
    QString fault;
    if (filter.point) {
        fault = toldFault(reader.life(filter, events));
    } else {
        std::vector<HistoryAction> actions;
        fault = toldFault(reader.actions(filter, actions));
        for (HistoryAction& action : actions)
            events.push_back({std::move(action), {}});
    }
    for (HistoryReader::Event& event : events)
        rows.push_back({std::move(event), {}});
    return fault.isEmpty() ? reader.notice() : fault;
}

QString DlgHistory::noteOf(const QString& readNote) const
{
    QStringList notes{m_filters->fault(), readNote};
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
    const Waiting waiting;
    const std::vector<int> chosen = m_actionTable->selectedRows();
    QString fault;
    HistoryItemModel::Events events;
    if (m_isLife) {
        for (int row = 0; row < m_actions->rowCount(); ++row)
            events.push_back(m_actions->row(row).event);
    } else if (!chosen.empty()) {
        events.push_back(eventOf(m_actions->row(chosen.front()), fault));
    }
    const auto caption = [this](int column) {
        return m_items->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    };
    using Column = HistoryItemModel::Column;
    m_itemTable->setHiddenColumns(
        m_isLife ? QStringList{caption(Column::Line), caption(Column::Point)}
                 : QStringList{caption(Column::Time), caption(Column::Action)});
    m_items->setEvents(std::move(events));
    for (const int column : {Column::Action, Column::Data, Column::Line, Column::Point,
                             Column::Change, Column::Field}) // another action has longer texts
        m_itemTable->widenColumn(column);
    if (!fault.isEmpty())
        tellNote(fault);
    if (m_isLife && !chosen.empty())
        m_itemTable->showRow(m_items->firstRowOf(static_cast<std::size_t>(chosen.front())));
    showState();
}

HistoryReader::Event DlgHistory::eventOf(const HistoryActionModel::Row& row, QString& fault)
{
    HistoryReader::Event event{row.event.action, {}};
    if (!row.unsaved)
        fault = toldFault(manager().history().items(event.action, event.items));
    else if (*row.unsaved < manager().unsavedEdits().entries().size()) // else it was saved just now
        event.items = manager().unsavedHistory().items(*row.unsaved);
    return event;
}

void DlgHistory::showState()
{
    int unsaved = 0;
    while (unsaved < m_actions->rowCount() && m_actions->row(unsaved).unsaved)
        ++unsaved;
    m_counts->setText(tr("Actions: %1, not saved yet: %2. Changes: %3, selected: %4")
                          .arg(lum::groupedNumber(m_actions->rowCount()),
                               lum::groupedNumber(unsaved), lum::groupedNumber(m_items->rowCount()),
                               lum::groupedNumber(m_itemTable->selectedRowCount())));
    const std::vector<int> chosen = m_itemTable->selectedRows();
    const bool isOne = !chosen.empty() && m_items->areTogether(chosen.front(), chosen.back());
    m_restore->setEnabled(isOne);
    m_restoreButton->setEnabled(isOne);
    m_restoreButton->setToolTip(
        isOne ? tr("Put the points back as they were before the action. It can be undone.")
              : tr("Select changes of one action above."));
}

// --- what is done ---

void DlgHistory::restore()
{
    const std::vector<int> chosen = m_itemTable->selectedRows();
    if (chosen.empty() || !ProjectState::hasData())
        return;
    std::vector<HistoryItem> items;
    for (const int row : chosen)
        items.push_back(m_items->item(row));
    const auto holds = [&](HistoryData kind) {
        return std::ranges::any_of(items,
                                   [&](const HistoryItem& item) { return item.data == kind; });
    };
    PointRestore result;
    {
        const Waiting waiting;
        result = restorePoints(m_items->action(chosen.front()), items);
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

/// The point of a row as the project has it: of a check point, the first of its measurements.
PointName DlgHistory::presentName(int row) const
{
    PointName name = m_items->item(row).name;
    if (!isCheckPoint(name.point))
        return name;
    const auto* const line = manager().surveyPoints().findLine(name.line);
    if (line == nullptr)
        return name;
    const auto points = writtenOrder(*line);
    const auto found = std::ranges::find_if(points, [&](const SurveyPoint* point) {
        return writtenPointNumber(point->pointNumber) == name.point;
    });
    return found == points.end() ? name : PointName{name.line, (*found)->pointNumber};
}

void DlgHistory::selectPoint(int row)
{
    const HistoryItem& item = m_items->item(row);
    if (item.name.point.empty())
        return;
    const PointName name = presentName(row);
    auto* const list = m_host.windows().findAs<IPointList>(
        item.data == HistoryData::Design ? QStringLiteral("Design Data List")
                                         : QStringLiteral("Survey Data List"));
    if (list != nullptr &&
        !list->selectPoint(lum::toQString(name.line), lum::toQString(name.point)))
        m_host.tell(tr("Point %1 is not in the project now.").arg(HistoryTexts::nameOf(item.name)));
}

void DlgHistory::zoomToPoint(int row)
{
    const PointName name = presentName(row);
    if (m_items->item(row).data == HistoryData::Design) {
        if (const DesignPoint* const point = manager().designPoints().find(name.line, name.point))
            PointHighlight::zoomTo(m_host, *point);
    } else if (const SurveyPoint* const point =
                   manager().surveyPoints().find(name.line, name.point)) {
        PointHighlight::zoomTo(m_host, *point);
    }
}
