#include "reports/daily/DailyFigures.h"

#include "exchange/ShownTimes.h"
#include "reports/ReportInput.h"

#include <algorithm>

namespace {

constexpr std::int64_t kDaySeconds = 86400;
constexpr std::int64_t kLongestDayMs = 25LL * 3600 * 1000; // when clocks are set back

QDate dayOf(std::int64_t timeMs)
{
    const std::int64_t clock = shownTimes().clockSeconds(timeMs);
    const std::int64_t second = (clock % kDaySeconds + kDaySeconds) % kDaySeconds;
    return QDate(1970, 1, 1).addDays((clock - second) / kDaySeconds);
}

/// The moment that tells the day of the report; 0 when there is none.
std::int64_t momentOf(const ReportInput& input)
{
    const ReportChoice& choice = input.choice;
    if (choice.fromMs && choice.untilMs && *choice.untilMs - *choice.fromMs <= kLongestDayMs)
        return *choice.fromMs;
    std::int64_t last = 0;
    for (const auto& [number, line] : input.survey) {
        for (const SurveyPoint& point : line) {
            if (point.dateTime > last && input.includes(point))
                last = point.dateTime;
        }
    }
    return last;
}

} // namespace

DailyFigures::DailyFigures(const ReportInput& input) : m_survey(input.survey)
{
    findDay(input);
    cutLater();
    m_ofDay = figuresOf(input, true);
    m_total = figuresOf(input, false);
    m_pace = statistics::paceOf(statistics::progressOf(m_total.sample), m_total.sample.design.left);
}

QString DailyFigures::dayText() const
{
    return m_day.isValid() ? m_day.toString(Qt::ISODate) : QString();
}

void DailyFigures::findDay(const ReportInput& input)
{
    const std::int64_t moment = momentOf(input);
    const QDate day = moment == 0 ? QDate() : dayOf(moment);
    const auto from = beginOfDay(day);
    const auto until = beginOfDay(day.addDays(1));
    if (!day.isValid() || !from || !until)
        return;
    m_day = day;
    m_fromMs = *from;
    m_untilMs = *until;
}

void DailyFigures::cutLater()
{
    const auto isLater = [this](const SurveyPoint& point) {
        return m_day.isValid() && point.dateTime >= m_untilMs;
    };
    m_isCut = std::any_of(m_survey.begin(), m_survey.end(), [&](const auto& line) {
        return std::any_of(line.second.begin(), line.second.end(), isLater);
    });
    if (!m_isCut)
        return;
    for (const auto& [number, line] : m_survey) {
        for (const SurveyPoint& point : line) {
            if (!isLater(point))
                m_cut.set(point);
        }
    }
}

StatisticsFigures DailyFigures::figuresOf(const ReportInput& input, bool isOfDay) const
{
    ReportChoice choice;
    choice.surveyors = input.choice.surveyors;
    if (isOfDay) {
        choice.fromMs = m_fromMs;
        choice.untilMs = m_untilMs;
    }
    return StatisticsFigures::from({input.design, survey(), input.qualityParameters,
                                    input.coordParameters, input.projectName, input.projectFile,
                                    input.program, choice, input.progress});
}
