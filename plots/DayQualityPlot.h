#pragma once

#include "plots/MarkSeries.h"
#include "plots/StatisticsPlot.h"

#include <QCoreApplication>

/// Horizontal accuracy and number of satellites of the first measurements over the hours of the
/// day, of all shown days together, in the colours of the rovers; with their limits.
class DayQualityPlot : public StatisticsPlot
{
    Q_DECLARE_TR_FUNCTIONS(DayQualityPlot)

public:
    explicit DayQualityPlot(QWidget* parent = nullptr) : StatisticsPlot(2, parent) {}

protected:
    [[nodiscard]] QString caption() const override;
    void fill() override;

private:
    /// \param limit  none when it is not above 0
    void fillPanel(int number, std::vector<PlotMark> marks, const std::vector<QColor>& colors,
                   const PlotRanges& time, double limit);
};
