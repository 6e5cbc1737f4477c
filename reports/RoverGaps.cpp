#include "reports/RoverGaps.h"

#include "exchange/ShownTimes.h"
#include "exchange/workbook/Workbook.h"
#include "model/PointNumber.h"
#include "reports/ReportSteps.h"
#include "reports/RoverWords.h"

#include <QCoreApplication>

#include <cmath>

namespace {

using Form = SheetColumn::Form;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RoverReport)
};

/// Tells a drive from a rest: how far apart the two results are, in metres on the plane.
double distanceM(const statistics::RoverGap& gap, double planeUnitM)
{
    for (const SurveyPoint* const point : {gap.before, gap.after}) {
        if (point->north == 0 && point->east == 0)
            return statistics::kUnknown;
    }
    return std::hypot(gap.after->north - gap.before->north, gap.after->east - gap.before->east) *
           planeUnitM;
}

Sheet& addSheet(Workbook& book)
{
    const auto limit = int(statistics::kGapMinutes);
    std::vector<SheetColumn> columns{
        {Texts::tr("Day"), Form::Date}, {Texts::tr("Rover")},
        {Texts::tr("Surveyor")},        {Texts::tr("From"), Form::Time},
        {Texts::tr("To"), Form::Time},  {Texts::tr("Minutes"), Form::Number, 1}};
    for (int side = 0; side < 2; ++side) {
        columns.push_back({Texts::tr("Line")});
        columns.push_back({Texts::tr("Point")});
        columns.push_back({Texts::tr("Base")});
    }
    columns.push_back({Texts::tr("Distance (m)"), Form::Number, 1});
    return book.addSheet(Texts::tr("Gaps over %1 minutes").arg(limit), std::move(columns),
                         {{},
                          {{Texts::tr("Gap"), 6},
                           {Texts::tr("Last point before it"), 3},
                           {Texts::tr("First point after it"), 3},
                           {Texts::tr("Between them"), 1}},
                          3});
}

} // namespace

bool writeRoverGaps(Workbook& book, const std::vector<statistics::RoverGap>& gaps,
                    double planeUnitM, ReportSteps& steps)
{
    constexpr double kDaySeconds = 86400;
    Sheet& sheet = addSheet(book);
    basalt::LocalTimes zone = shownTimes();
    for (const statistics::RoverGap& gap : gaps) {
        const std::int64_t from = gap.before->dateTime;
        sheet.day(std::int64_t(std::floor(double(zone.clockSeconds(from)) / kDaySeconds)))
            .text(roverLogName(gap.before->instrumentSerialNumber))
            .text(roverLogName(gap.before->surveyor))
            .time(from)
            .time(gap.after->dateTime)
            .number(gap.minutes());
        for (const SurveyPoint* const point : {gap.before, gap.after})
            sheet.text(point->lineNumber)
                .text(writtenPointNumber(point->pointNumber))
                .text(roverLogName(point->baseStationId));
        sheet.number(distanceM(gap, planeUnitM)).endRow();
        if (!steps.next())
            return false;
    }
    return true;
}
