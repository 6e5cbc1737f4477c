#pragma once

#include "model/PointLines.h"

#include <QDate>
#include <QMap>
#include <QStringList>

#include <map>

/// Days one after the other, both ends included. Without dates: all results, also those that have
/// no time.
struct DaySpan
{
    QDate first;
    QDate last;

    [[nodiscard]] bool isAll() const { return !first.isValid() || !last.isValid(); }
};

/// How many results there are of each surveyor and day, so that those of a choice are counted at
/// once. Days are those of the zone in which the program shows times.
class ResultDays
{
public:
    explicit ResultDays(const SurveyPoints& points);

    /// In the order of their names; an empty one for results without a surveyor.
    [[nodiscard]] QStringList surveyors() const { return m_counts.keys(); }
    [[nodiscard]] std::size_t count(const QString& surveyor, const DaySpan& days = {}) const;
    [[nodiscard]] std::size_t total() const { return m_total; }

    /// Of all results with a time; today when there is none.
    [[nodiscard]] QDate firstDay() const { return m_first; }
    [[nodiscard]] QDate lastDay() const { return m_last; }

private:
    using DayCounts = std::map<QDate, std::size_t>; ///< an invalid date for those without a time

    QMap<QString, DayCounts> m_counts;
    std::size_t m_total;
    QDate m_first;
    QDate m_last;
};
