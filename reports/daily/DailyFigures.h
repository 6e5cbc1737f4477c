#pragma once

#include "quality/statistics/StakingProgress.h"
#include "reports/StatisticsFigures.h"

#include <QDate>

struct ReportInput;

/// The figures of a day and of all results until its end, each those of the workbook "Quality
/// statistics" for the same results. Valid as long as the points that they were made of.
///
/// The day is the last one with a result of the chosen period and surveyors, or the period itself
/// when that is one day. What was measured later is left out altogether, so that the report of a
/// day is the same whenever it is made. A result without a time was there before every day.
class DailyFigures
{
public:
    explicit DailyFigures(const ReportInput& input);
    DailyFigures(const DailyFigures&) = delete;
    DailyFigures& operator=(const DailyFigures&) = delete;

    [[nodiscard]] const QDate& day() const { return m_day; } ///< invalid when there is none
    [[nodiscard]] QString dayText() const;                   ///< "2025-05-17"; empty without a day
    /// Whether a moment is of the day.
    [[nodiscard]] bool isOfDay(std::int64_t timeMs) const
    {
        return timeMs != 0 && timeMs >= m_fromMs && timeMs < m_untilMs;
    }
    /// The results of all surveyors until the end of the day.
    [[nodiscard]] const SurveyPoints& survey() const { return m_isCut ? m_cut : m_survey; }
    [[nodiscard]] const StatisticsFigures& ofDay() const { return m_ofDay; }
    [[nodiscard]] const StatisticsFigures& total() const { return m_total; }
    /// Of the chosen surveyors, for what nobody has staked.
    [[nodiscard]] const statistics::Pace& pace() const { return m_pace; }

private:
    void findDay(const ReportInput& input);
    void cutLater();
    [[nodiscard]] StatisticsFigures figuresOf(const ReportInput& input, bool isOfDay) const;

    const SurveyPoints& m_survey;
    SurveyPoints m_cut; ///< without what was measured later, when anything was
    bool m_isCut = false;
    QDate m_day;
    std::int64_t m_fromMs = 0;
    std::int64_t m_untilMs = 0; ///< both 0 without a day
    StatisticsFigures m_ofDay;
    StatisticsFigures m_total;
    statistics::Pace m_pace;
};
