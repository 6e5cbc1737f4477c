#include "views/tables/DesignLineTable.h"

#include "exchange/CsvFaults.h"
#include "exchange/CsvRow.h"
#include "exchange/DesignHeading.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/files/WholeFileWriter.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "views/tables/DesignTableModel.h"

#include <QMenu>

#include <cstring>

namespace {

constexpr const char* kEvents = "ON_DESIGN_LINE_SWITCHED,REFRESH_DESIGN_TABLE,"
                                "ON_CLEAR_DESIGN_TABLE,ON_DESIGN_TABLE_SELECT_POINT,"
                                "REFRESH_SURVEY_TABLE,ON_RESURVEYS_CHECKED";

DesignPoints& designPoints()
{
    return DataProcessDataManager::instance().designPoints();
}

void addCells(CsvRow& line, const PointTableModel& model, int row, const DesignPoint& point)
{
    for (int column = 0; column < model.columnCount(); ++column) {
        const QString key = model.columnKey(column);
        if (key == QLatin1String("type"))
            line.addInteger(point.type == 0 ? 0 : 1);
        else if (key == QLatin1String("status"))
            line.addInteger(point.status == 1 ? 1 : 0);
        else
            line.addText(model.index(row, column).data().toString().toStdString());
    }
}

} // namespace

DesignLineTable::DesignLineTable(const char* config, IDesktopHost* host)
    : PointTableWindow(config, *host, makeDesignTableModel(), events::kDesignPointSelected),
      m_subscription(*this, kEvents, host->eventManager()),
      m_projectSubscription(*this, events::kUpdateSystemStatus, host->eventManager())
{
    followProject();
}

void DesignLineTable::handleEvent(const char* eventName, const char* payload, int /*reserved*/)
{
    const auto is = [&](const char* name) { return std::strcmp(eventName, name) == 0; };
    basalt::Dictionary values;
    payload::read(payload, values);
    const QString line = lum::toQString(values.text("line_num"));
    if (is(events::kDesignLineSwitched))
        showLine(line);
    else if (is(events::kRefreshDesignTable))
        refresh();
    else if (is(events::kRefreshSurveyTable) || is(events::kResurveysChecked))
        followResults();
    else if (is(events::kClearDesignTable))
        showNothing();
    else if (is(events::kDesignTableSelectPoint) && line == model().line())
        selectPoint(line, lum::toQString(values.text("point_num")));
    else if (is(events::kUpdateSystemStatus))
        followProject();
}

bool DesignLineTable::isInProject(const PointName& point) const
{
    return designPoints().find(point.line, point.point) != nullptr;
}

void DesignLineTable::zoomTo(const PointName& point)
{
    if (const DesignPoint* const found = designPoints().find(point.line, point.point))
        PointHighlight::zoomTo(m_host, *found);
}

void DesignLineTable::addEntries(QMenu& menu)
{
    addExportEntry(menu);
    addCopyEntry(menu);
}

QString DesignLineTable::exportTitle() const
{
    return tr("Export Selected Design Point");
}

Outcome DesignLineTable::exportPoints(const std::vector<PointName>& points, const QString& path)
{
    if (Outcome check = checkNotOwn(ProjectState::place(), path); !check.isDone())
        return check;
    lum::WholeFileWriter file(path);
    CsvRow line;
    for (const QString& caption : designCaptions())
        line.addText(caption.toStdString());
    file.write(line.finished());
    for (const PointName& name : points) {
        const DesignPoint* const point = designPoints().find(name.line, name.point);
        const int row = model().rowOf(name);
        if (point == nullptr || row < 0)
            continue;
        line.clear();
        addCells(line, model(), row, *point);
        file.write(line.finished());
    }
    const QString fault = file.commit();
    return fault.isEmpty() ? Outcome::done() : cannotWrite(path, fault);
}

QString DesignLineTable::emptyText() const
{
    if (designPoints().pointCount() == 0)
        return tr("The project has no design points yet.");
    return tr("No line is shown. <a href=\"#\">Show the first line</a>");
}

void DesignLineTable::showSomething()
{
    if (designPoints().begin() != designPoints().end())
        showLine(lum::toQString(designPoints().begin()->first));
}
