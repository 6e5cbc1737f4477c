#pragma once

#include "plots/BarSeries.h"
#include "plots/StatisticsPlot.h"
#include "quality/statistics/StakingProgress.h"

#include <QCoreApplication>

class GroupClasses;

/// The design points staked on each day, by surveyor, and below that all until then beside the
/// design, with the days that are still needed at the present pace.
class ProgressPlot : public StatisticsPlot
{
    Q_DECLARE_TR_FUNCTIONS(ProgressPlot)

public:
    explicit ProgressPlot(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString caption() const override;
    void fill() override;

private:
    void fillDays(const PlotRanges& time);
    /// The bars of each day, one on the other.
    [[nodiscard]] std::vector<PlotBar> dayBars(const std::vector<std::uint32_t>& places,
                                               const GroupClasses& surveyors) const;
    void fillCurve(const statistics::StakingProgress& progress, const statistics::Pace& pace,
                   const PlotRanges& time);
    void addPace(const statistics::Pace& pace, const QPointF& from);
    [[nodiscard]] QString noteOf(const statistics::StakingProgress& progress,
                                 const statistics::Pace& pace) const;
};
