#pragma once

#include "plots/StatisticsPlot.h"

#include <QCoreApplication>

/// How many first measurements lie how far from their design points, with the limit, and the
/// distance that 95 % do not exceed. The limit is the end of a class, and a distance on it belongs
/// to the class below.
class DistancePlot : public StatisticsPlot
{
    Q_DECLARE_TR_FUNCTIONS(DistancePlot)

public:
    explicit DistancePlot(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString caption() const override;
    void fill() override;

private:
    /// \param width of a class, metres \returns the most results in a class
    double addBars(const std::vector<std::uint32_t>& places, double width);
    void addLimit(double limitM, const std::vector<double>& distances);
};
