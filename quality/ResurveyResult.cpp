#include "quality/ResurveyResult.h"

#include "quality/ResurveyCheck.h"
#include "quality/ResurveyTolerances.h"

#include <QCoreApplication>

namespace {

/// Null without a fault.
const char* describe(const SurveyPoint& point)
{
    switch (resurveyDigit(point)) {
    case 0:
        return nullptr;
    case 1:
        return QT_TRANSLATE_NOOP("ResurveyCheck", "Resurvey Coord Out-range.");
    default:
        return QT_TRANSLATE_NOOP("ResurveyCheck", "Resurvey Point No Corresponding Point.");
    }
}

ResurveyRow rowOf(const SurveyPoint& point, const ResurveyTolerances& tolerances)
{
    ResurveyRow row;
    row.pointNumber = point.pointNumber;
    row.lineNumber = point.lineNumber;
    row.description = describe(point);
    row.own = {point.north, point.east, point.elevation};
    row.toleranceM = tolerances.metres;
    row.hasPair = resurveyDigit(point) == 1;
    if (!row.hasPair)
        return row;
    const ResurveyRow::Position moved{point.resurveyXDiff, point.resurveyYDiff,
                                      point.resurveyHDiff};
    row.pairedNumber = point.pairedNumber;
    row.isOut = tolerances.exceededBy(moved);
    for (std::size_t axis = 0; axis < moved.size(); ++axis) {
        row.again[axis] = row.own[axis] + moved[axis];
        row.difference[axis] = 0 - moved[axis]; // not -moved, whose 0 would be shown as -0.000
    }
    return row;
}

} // namespace

QString ResurveyRow::text() const
{
    return QCoreApplication::translate("ResurveyCheck", description);
}

std::vector<ResurveyRow> resurveyRows(const SurveyPoints& points, const IDictionary& parameters,
                                      double planeUnitM)
{
    const ResurveyTolerances tolerances = ResurveyTolerances::from(parameters, planeUnitM);
    std::vector<ResurveyRow> rows;
    for (const auto& [number, line] : points) {
        for (const SurveyPoint& point : line) {
            if (resurveyDigit(point) != 0)
                rows.push_back(rowOf(point, tolerances));
        }
    }
    return rows;
}

QString resurveyFault(const SurveyPoint& point)
{
    const char* const description = describe(point);
    return description == nullptr ? QString()
                                  : QCoreApplication::translate("ResurveyCheck", description);
}
