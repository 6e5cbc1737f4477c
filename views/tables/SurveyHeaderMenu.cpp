#include "views/tables/SurveyHeaderMenu.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/Events.h"
#include "views/tables/ColumnChoice.h"
#include "views/tables/PointTableModel.h"

#include <QHeaderView>
#include <QMenu>
#include <QScopedValueRollback>

namespace {

const QString& columnsCommand()
{
    static const QString kName = QStringLiteral("Survey Columns");
    return kName;
}

ColumnChoice storedChoice()
{
    return columnChoice(get_system_ini_parameter().dictionary());
}

} // namespace

SurveyHeaderMenu::SurveyHeaderMenu(IDesktopHost& host, CustomTableWidget& table,
                                   const PointTableModel& model)
    : m_host(host), m_table(table), m_model(model)
{
    QHeaderView* const header = table.horizontalHeader();
    header->setSectionsMovable(true);
    connect(header, &QHeaderView::sectionMoved, this, &SurveyHeaderMenu::storeOrder);
    connect(&table, &CustomTableWidget::headerMenuRequestedAt, this, &SurveyHeaderMenu::showMenu);
    apply();
}

void SurveyHeaderMenu::apply()
{
    const QScopedValueRollback<bool> guard(m_isApplying, true);
    const ColumnChoice choice = storedChoice();
    QStringList keys;
    QStringList hidden;
    for (int column = 0; column < m_model.columnCount(); ++column) {
        keys << m_model.columnKey(column);
        if (choice.hidden.contains(keys.back()))
            hidden << m_model.headerData(column, Qt::Horizontal).toString();
    }
    m_table.setHiddenColumns(hidden);
    QHeaderView& header = *m_table.horizontalHeader();
    int place = 0;
    for (const QString& key : choice.order) {
        const int column = keys.indexOf(key);
        if (column >= 0)
            header.moveSection(header.visualIndex(column), place++);
    }
}

void SurveyHeaderMenu::showMenu(int column, const QPoint& place)
{
    const QStringList hidden = storedChoice().hidden;
    auto* const menu = new QMenu(&m_table);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Hide This Column"), this, [this, column] { setHidden(column, true); })
        ->setEnabled(m_model.columnCount() - hidden.size() > 1);
    addColumns(*menu->addMenu(tr("Columns")), hidden);
    menu->addSeparator();
    menu->addAction(tr("Survey Columns..."), this,
                    [this] { m_host.commands().execute(columnsCommand()); })
        ->setEnabled(m_host.commands().find(columnsCommand()) != nullptr);
    menu->popup(place);
}

/// A check mark for each column, in the order of the table.
void SurveyHeaderMenu::addColumns(QMenu& menu, const QStringList& hidden)
{
    const QHeaderView& header = *m_table.horizontalHeader();
    const bool isOneLeft = m_model.columnCount() - hidden.size() <= 1;
    for (int place = 0; place < header.count(); ++place) {
        const int column = header.logicalIndex(place);
        const bool isHidden = hidden.contains(m_model.columnKey(column));
        QString caption = m_model.headerData(column, Qt::Horizontal).toString();
        caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
        QAction* const action = menu.addAction(
            caption, this, [this, column, isHidden] { setHidden(column, !isHidden); });
        action->setCheckable(true);
        action->setChecked(!isHidden);
        action->setEnabled(isHidden || !isOneLeft);
    }
}

void SurveyHeaderMenu::setHidden(int column, bool isHidden)
{
    ColumnChoice choice = storedChoice();
    const QString key = m_model.columnKey(column);
    choice.hidden.removeAll(key);
    if (isHidden)
        choice.hidden << key;
    store(choice);
}

void SurveyHeaderMenu::storeOrder()
{
    if (m_isApplying)
        return;
    ColumnChoice choice = storedChoice();
    choice.order.clear();
    const QHeaderView& header = *m_table.horizontalHeader();
    for (int place = 0; place < header.count(); ++place)
        choice.order << m_model.columnKey(header.logicalIndex(place));
    store(choice);
}

void SurveyHeaderMenu::store(const ColumnChoice& choice)
{
    SystemParameter& settings = get_system_ini_parameter();
    setColumnChoice(settings.dictionary(), choice);
    settings.save(); // logs a failure; the choice is then kept for this session only
    m_host.eventManager().publish(events::kSurveyColumnsChanged, nullptr, 0);
}
