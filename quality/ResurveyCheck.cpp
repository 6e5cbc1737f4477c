#include "quality/ResurveyCheck.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCode.h"
#include "quality/ResurveyTolerances.h"
#include "quality/UnplacedResults.h"

#include <QCoreApplication>

namespace {

constexpr int kOutOfRange = 1;
constexpr int kNoFirst = 2;
constexpr int kDigit = 10; ///< of the quality code

void setDigit(SurveyPoint& point, int digit)
{
    point.qualityStandard += (digit - resurveyDigit(point)) * kDigit;
}

/// Removes what an earlier run has written; most results have nothing, and are not touched.
void forget(SurveyPoint& point)
{
    if (resurveyDigit(point) != 0)
        setDigit(point, 0);
    if (point.isResurvey == resurvey::kNone)
        return;
    point.isResurvey = resurvey::kNone;
    point.pairedNumber.clear();
}

/// Pairs the results of one line after the other.
class ResurveyCheck
{
public:
    ResurveyCheck(const IDictionary& parameters, double planeUnitM)
        : m_code(qualityParameter(parameters, kResurveyCode)),
          m_tolerances(ResurveyTolerances::from(parameters, planeUnitM))
    {
        if (m_code.empty())
            basalt::logWarning("The resurvey code is empty: every result is its own resurvey.");
    }

    void check(SurveyPoints::Line& line, SurveyPoint& point)
    {
        if (point.pointNumber.find(m_code) == std::string::npos)
            return;
        point.isResurvey = resurvey::kAgain;
        if (SurveyPoint* const first = line.find(withoutCode(point.pointNumber, m_code))) {
            compare(*first, point);
            return;
        }
        point.isResurvey = resurvey::kAlone;
        setDigit(point, kNoFirst);
    }
    void warn() const { m_unplaced.warn(); }

private:
    void compare(SurveyPoint& first, SurveyPoint& again)
    {
        m_unplaced.examine(first);
        m_unplaced.examine(again);
        first.isResurvey = resurvey::kFirst;
        first.resurveyXDiff = again.north - first.north;
        first.resurveyYDiff = again.east - first.east;
        first.resurveyHDiff = again.elevation - first.elevation;
        first.pairedNumber = again.pointNumber;
        again.pairedNumber = first.pointNumber;
        const auto isOut = m_tolerances.exceededBy(
            {first.resurveyXDiff, first.resurveyYDiff, first.resurveyHDiff});
        setDigit(first, isOut[0] || isOut[1] || isOut[2] ? kOutOfRange : 0);
    }

    std::string m_code;
    ResurveyTolerances m_tolerances;
    UnplacedResults m_unplaced;
};

} // namespace

int resurveyDigit(const SurveyPoint& point)
{
    return point.qualityStandard / kDigit % 10;
}

void checkResurveys(SurveyPoints& points, const IDictionary& parameters, ProgressReporter& progress,
                    double planeUnitM)
{
    const std::string caption =
        QCoreApplication::translate("ResurveyCheck", "Resurvey Check Survey Line:").toStdString();
    ResurveyCheck check(parameters, planeUnitM);
    for (auto& [number, line] : points) {
        for (SurveyPoint& point : line) { // all of them first: a result may change one before it
            fetchAhead(point);
            forget(point);
        }
        ProgressSteps steps(progress, caption + number, line.size());
        for (SurveyPoint& point : line) {
            check.check(line, point);
            steps.next();
        }
    }
    progress.hide();
    check.warn();
}
