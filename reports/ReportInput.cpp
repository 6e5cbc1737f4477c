#include "reports/ReportInput.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/Text.h"

std::optional<std::int64_t> beginOfDay(const QDate& day)
{
    return shownTimes().read(day.toString(QStringLiteral("yyyy/MM/dd 00:00:00")).toStdString());
}

void ReportChoice::setDays(const QDate& first, const QDate& last)
{
    fromMs = beginOfDay(first);
    untilMs = beginOfDay(last.addDays(1));
}

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
