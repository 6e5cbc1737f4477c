#include "views/tables/SurveyDataTable.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "model/PointNumber.h"
#include "model/SurveyColumns.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/DlgSurveyPoint.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "views/tables/SurveyTableColumns.h"
#include "views/tables/SurveyTableModel.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <cstring>
#include <string>

namespace {

constexpr const char* kEvents =
    "ON_SURVEY_LINE_SWITCHED,REFRESH_SURVEY_TABLE,ON_CLEAR_SURVEY_TABLE,"
    "ON_SURVEY_TABLE_SELECT_POINT,ON_SHOW_ALL_SURVEY_TABLE,ON_RESURVEYS_CHECKED";

SurveyPoints& surveyPoints()
{
    return DataProcessDataManager::instance().surveyPoints();
}

} // namespace

SurveyDataTable::SurveyDataTable(const char* config, IDesktopHost* host)
    : PointTableWindow(config, *host, makeSurveyTableModel(), events::kSurveyPointSelected),
      m_headerMenu(*host, table(), model()), m_subscription(*this, kEvents, host->eventManager()),
      m_otherSubscription(
          *this, lum::eventNames({events::kSurveyColumnsChanged, events::kUpdateSystemStatus}),
          host->eventManager())
{
    auto* const deletes = new QAction(this);
    deletes->setShortcut(QKeySequence::Delete);
    deletes->setShortcutContext(Qt::WidgetShortcut); // not that of the filter fields
    connect(deletes, &QAction::triggered, this, &SurveyDataTable::askToDelete);
    table().addAction(deletes);
    linesChanged();
    followProject();
}

void SurveyDataTable::handleEvent(const char* eventName, const char* payload, int /*reserved*/)
{
    const auto is = [&](const char* name) { return std::strcmp(eventName, name) == 0; };
    basalt::Dictionary values;
    payload::read(payload, values);
    const QString line = lum::toQString(values.text("line_num"));
    if (is(events::kSurveyLineSwitched))
        showLine(line);
    else if (is(events::kRefreshSurveyTable))
        refreshTexts();
    else if (is(events::kResurveysChecked))
        followResults();
    else if (is(events::kClearSurveyTable))
        showNothing();
    else if (is(events::kSurveyTableSelectPoint))
        selectShown(line, lum::toQString(values.text("point_num")));
    else if (is(events::kShowAllSurveyTable))
        showAllLines();
    else if (is(events::kSurveyColumnsChanged))
        m_headerMenu.apply();
    else if (is(events::kUpdateSystemStatus))
        followProject();
}

void SurveyDataTable::refreshTexts()
{
    refresh();
    widenAngles();
}

/// Degrees, minutes and seconds are longer than degrees alone.
void SurveyDataTable::widenAngles()
{
    const int format = get_system_status_dictionary().integer(status::kDegreeFormat);
    if (format == m_degreeFormat || model().rowCount() == 0)
        return;
    m_degreeFormat = format;
    for (int column = 0; column < model().columnCount(); ++column) {
        if (surveyTableColumn(column).csv == CsvForm::Angle)
            table().widenColumn(column);
    }
}

/// Selects a point of the lines that are shown, by its number as it is shown: that of a check point
/// goes to the first of its measurements.
void SurveyDataTable::selectShown(const QString& lineNumber, const QString& pointNumber)
{
    if (!model().showsAllLines() && model().line() != lineNumber)
        return;
    if (selectPoint(lineNumber, pointNumber))
        return;
    const auto* const line = DataProcessDataManager::hasInstance()
                                 ? surveyPoints().findLine(lineNumber.toStdString())
                                 : nullptr;
    if (line == nullptr)
        return;
    const std::string shown = pointNumber.toStdString();
    const auto points = writtenOrder(*line);
    const auto found = std::find_if(points.begin(), points.end(), [&](const SurveyPoint* point) {
        return writtenPointNumber(point->pointNumber) == shown;
    });
    if (found != points.end())
        selectPoint(lineNumber, lum::toQString((*found)->pointNumber));
}

bool SurveyDataTable::isInProject(const PointName& point) const
{
    return surveyPoints().find(point.line, point.point) != nullptr;
}

void SurveyDataTable::zoomTo(const PointName& point)
{
    if (const SurveyPoint* const found = surveyPoints().find(point.line, point.point))
        PointHighlight::zoomTo(m_host, *found);
}

void SurveyDataTable::addEntries(QMenu& menu)
{
    addExportEntry(menu);
    menu.addAction(tr("modify"), this, &SurveyDataTable::modify);
    menu.addAction(tr("delete"), this, &SurveyDataTable::askToDelete)
        ->setShortcut(QKeySequence::Delete);
    addCopyEntry(menu);
}

QString SurveyDataTable::exportTitle() const
{
    return tr("Export Selected Survey Point");
}

Outcome SurveyDataTable::exportPoints(const std::vector<PointName>& points, const QString& path)
{
    Outcome outcome = Outcome::done();
    DataProcessDataManager::instance().exportSurveyPoints(points, path, &outcome);
    return outcome;
}

QString SurveyDataTable::emptyText() const
{
    if (surveyPoints().pointCount() == 0)
        return tr("The project has no survey results yet.");
    return tr("No line is shown. <a href=\"#\">Show all lines</a>");
}

void SurveyDataTable::showSomething()
{
    showAllLines();
}

void SurveyDataTable::linesChanged()
{
    // Nothing in the frame depends on it, so that nobody has to be told.
    get_system_status_dictionary().set(status::kShowAllLines, model().showsAllLines() ? "1" : "0");
    widenAngles();
}

void SurveyDataTable::modify()
{
    const std::vector<PointName> points = selectedPoints();
    if (points.empty())
        return;
    DlgSurveyPoint dialog(m_host.dialogParent(), points.front());
    if (dialog.exec() != QDialog::Accepted)
        return;
    announceChange();
    selectPoint(lum::toQString(dialog.point().line), lum::toQString(dialog.point().point));
}

void SurveyDataTable::askToDelete()
{
    const std::vector<int> rows = table().selectedRows();
    const std::vector<PointName> points = selectedPoints();
    if (points.empty())
        return;
    using Button = LumMessageBox::Button;
    const Button answer = LumMessageBox::warning(
        m_host.dialogParent(), tr("warning"), tr("Are you sure to delete these records?"),
        LumMessageBox::Buttons(Button::Yes) | Button::No, tr("Records: %1").arg(points.size()));
    if (answer != Button::Yes || !DataProcessDataManager::hasInstance())
        return;
    const int column = table().currentIndex().column();
    DataProcessDataManager::instance().deleteSurveyPoints(points);
    announceChange();
    // The keys go on from the place of the deleted rows.
    const int row = std::min(rows.front(), model().rowCount() - 1);
    if (row >= 0)
        table().selectionModel()->setCurrentIndex(model().index(row, std::max(column, 0)),
                                                  QItemSelectionModel::NoUpdate);
}

/// The tree that hears of it may show all lines; the table then goes back to its own line.
void SurveyDataTable::announceChange()
{
    refresh();
    const QString line = model().line();
    m_host.eventManager().publish(events::kRefreshSurveyLayer, nullptr, 0);
    const bool isLeft = !line.isEmpty() && model().line() != line;
    if (isLeft && surveyPoints().findLine(line.toStdString()) != nullptr)
        showLine(line);
}
