#pragma once

#include "reports/ui/ReportMemory.h"
#include "reports/ui/ResultDays.h"

#include <QGroupBox>

class QDateEdit;
class QRadioButton;
struct ReportChoice;

/// Chooses the period of the results: all, one day, or a span of days.
class PeriodPanel final : public QGroupBox
{
    Q_OBJECT

public:
    PeriodPanel(const ResultDays& results, const PeriodChoice& choice, QWidget* parent);

    [[nodiscard]] PeriodChoice choice() const;
    [[nodiscard]] DaySpan days() const;
    /// Sets the moments of the period.
    void apply(ReportChoice& report) const;
    /// What is wrong with the dates, a translated sentence; empty when they are good.
    [[nodiscard]] QString fault() const;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] QDateEdit* makeDate(const QDate& kept, const QDate& proposed, const char* name);

    QDate m_firstDay;
    QDate m_lastDay;
    QRadioButton* m_all;
    QRadioButton* m_isDay;
    QRadioButton* m_isSpan;
    QDateEdit* m_day;
    QDateEdit* m_first;
    QDateEdit* m_last;
};
