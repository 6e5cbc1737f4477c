#pragma once

#include "plots/StatisticsPlot.h"

#include <QCoreApplication>

/// The differences in height from the design, result after result along the lines, with the limit
/// and the mean.
class LineHeightPlot : public StatisticsPlot
{
    Q_DECLARE_TR_FUNCTIONS(LineHeightPlot)

public:
    explicit LineHeightPlot(QWidget* parent = nullptr) : StatisticsPlot(1, parent) {}

protected:
    [[nodiscard]] QString caption() const override;
    void fill() override;

private:
    void setStations(const std::vector<std::uint32_t>& places);
    void addMean(const statistics::Moments& moments);
    void addLimits(double limitM);
};
