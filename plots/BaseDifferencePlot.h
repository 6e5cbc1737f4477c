#pragma once

#include "plots/StatisticsPlot.h"

#include <QCoreApplication>

class GroupClasses;

/// The differences of points that were measured twice (resurveys and repeats), the later minus the
/// first measurement, at the time of the later one and in the colour of its base; with the mean of
/// each base, a band of two standard deviations about it, and the tolerances of resurveys. East,
/// north and height below each other.
class BaseDifferencePlot : public StatisticsPlot
{
    Q_DECLARE_TR_FUNCTIONS(BaseDifferencePlot)

public:
    explicit BaseDifferencePlot(QWidget* parent = nullptr) : StatisticsPlot(3, parent) {}

protected:
    [[nodiscard]] QString caption() const override;
    void fill() override;

private:
    struct Shown
    {
        const statistics::MeasuredPair* pair;
        std::uint32_t place; ///< of the later result
        double clockMs;
    };
    /// The pairs that are to be shown and have a time.
    [[nodiscard]] std::vector<Shown> shownPairs(std::size_t& untimed) const;
    void fillPanel(int number, const std::vector<Shown>& pairs, const GroupClasses& bases,
                   const PlotRanges& time);
    void addToleranceLegend();
    void addMeans(int number, const std::vector<Shown>& pairs, const GroupClasses& bases);
};
