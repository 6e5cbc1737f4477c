#include "reports/RoverBases.h"

#include "exchange/workbook/Workbook.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "reports/ReportSteps.h"
#include "reports/RoverWords.h"

#include <QCoreApplication>

#include <set>

namespace {

using Form = SheetColumn::Form;
using statistics::BaseUse;
using statistics::RoverSession;

constexpr double kKilometre = 1000;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RoverReport)
};

using RoversOf = std::map<std::string, std::set<std::string>>;

RoversOf roversOf(const std::vector<RoverSession>& sessions)
{
    RoversOf rovers;
    for (const RoverSession& session : sessions)
        rovers[session.base].insert(session.rover);
    return rovers;
}

QString listOf(const std::set<std::string>& rovers)
{
    QStringList names;
    for (const std::string& rover : rovers)
        names << roverLogName(rover);
    return roverLogList(names);
}

Sheet& addSheet(Workbook& book, const QualityLimits& limits, const QString& planeUnit)
{
    constexpr std::size_t kMoved = 12;
    constexpr std::size_t kFarthest = 20;
    const QString degrees(QChar(0xB0));
    Sheet& sheet = book.addSheet(Texts::tr("Bases"),
                                 {{Texts::tr("Name")},
                                  {Texts::tr("Rovers")},
                                  {Texts::tr("Days"), Form::Number},
                                  {Texts::tr("Points"), Form::Number},
                                  {Texts::tr("First"), Form::Time},
                                  {Texts::tr("Last"), Form::Time},
                                  {Texts::tr("North (%1)").arg(planeUnit), Form::Number, 3},
                                  {Texts::tr("East (%1)").arg(planeUnit), Form::Number, 3},
                                  {Texts::tr("Height (m)"), Form::Number, 3},
                                  {Texts::tr("Latitude (%1)").arg(degrees), Form::Number, 8},
                                  {Texts::tr("Longitude (%1)").arg(degrees), Form::Number, 8},
                                  {Texts::tr("Line / point"), Form::Text},
                                  {Texts::tr("Moved"), Form::Code},
                                  {Texts::tr("Results"), Form::Number},
                                  {Texts::tr("Since"), Form::Time},
                                  {Texts::tr("Line / point"), Form::Text},
                                  {Texts::tr("On the plane (m)"), Form::Number, 3},
                                  {Texts::tr("In height (m)"), Form::Number, 3},
                                  {Texts::tr("Nearest"), Form::Number, 3},
                                  {Texts::tr("Mean"), Form::Number, 3},
                                  {Texts::tr("Farthest"), Form::Number, 3}},
                                 {{},
                                  {{Texts::tr("Base"), 1},
                                   {Texts::tr("Used by"), 5},
                                   {Texts::tr("Position in its first result"), 6},
                                   {Texts::tr("Put elsewhere by other results"), 6},
                                   {Texts::tr("Distance of the points (km)"), 3}},
                                  1});
    sheet.colourText(kMoved, Texts::tr("yes"));
    for (const std::size_t column : {kMoved + 4, kMoved + 5})
        sheet.colourAbove(column, statistics::kBaseMovedM);
    sheet.colourAbove(kFarthest, limits.baseDistanceM / kKilometre);
    return sheet;
}

QString nameOf(const SurveyPoint& point)
{
    return lum::toQString(point.lineNumber) + QLatin1String(" / ") +
           lum::toQString(writtenPointNumber(point.pointNumber));
}

void addPosition(Sheet& sheet, const BaseUse& base)
{
    const SurveyPoint& point = *base.first;
    if (base.hasPosition())
        sheet.number(point.referenceNorth)
            .number(point.referenceEast)
            .number(point.referenceAltitude);
    else
        sheet.blank().blank().blank();
    if (point.referenceLatitude != 0 || point.referenceLongitude != 0)
        sheet.number(point.referenceLatitude).number(point.referenceLongitude);
    else
        sheet.blank().blank();
    sheet.text(nameOf(point));
}

void addMove(Sheet& sheet, const BaseUse& base)
{
    if (base.base.empty() || !base.hasPosition()) {
        sheet.blank().blank().blank().blank().blank().blank();
        return;
    }
    sheet.text(hasMoved(base) ? Texts::tr("yes") : Texts::tr("no")).number(double(base.elsewhere));
    if (hasMoved(base))
        sheet.timeOrBlank(base.firstElsewhere->dateTime).text(nameOf(*base.firstElsewhere));
    else
        sheet.blank().blank();
    sheet.number(base.movedM).number(base.movedHeightM);
}

} // namespace

bool hasMoved(const BaseUse& base)
{
    return !base.base.empty() && base.elsewhere > 0;
}

bool writeRoverBases(Workbook& book, const std::vector<BaseUse>& bases,
                     const std::vector<RoverSession>& sessions, const QualityLimits& limits,
                     const QString& planeUnit, ReportSteps& steps)
{
    Sheet& sheet = addSheet(book, limits, planeUnit);
    const RoversOf rovers = roversOf(sessions);
    for (const BaseUse& base : bases) {
        sheet.text(roverLogName(base.base))
            .text(listOf(rovers.at(base.base)))
            .number(double(base.days))
            .number(double(base.results))
            .timeOrBlank(base.firstMs)
            .timeOrBlank(base.lastMs);
        addPosition(sheet, base);
        addMove(sheet, base);
        sheet.number(base.distanceM.minimum() / kKilometre)
            .number(base.distanceM.mean() / kKilometre)
            .number(base.distanceM.maximum() / kKilometre)
            .endRow();
        if (!steps.next())
            return false;
    }
    return true;
}
