#include "reports/ReportInput.h"

#include "lum_sdk/Text.h"

bool ReportInput::includes(const SurveyPoint& point) const
{
    const bool hasPeriod = choice.fromMs || choice.untilMs;
    if (hasPeriod && point.dateTime == 0)
        return false;
    if ((choice.fromMs && point.dateTime < *choice.fromMs) ||
        (choice.untilMs && point.dateTime >= *choice.untilMs))
        return false;
    return choice.surveyors.isEmpty() || choice.surveyors.contains(lum::toQString(point.surveyor));
}
