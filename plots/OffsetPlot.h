#pragma once

#include "plots/StatisticsPlot.h"
#include "quality/statistics/ErrorEllipse.h"

#include <QCoreApplication>

/// Where the first measurements lie around their design points, east and north in metres, with the
/// circle of the limit and the ellipse in which 95 % of them lie when they are spread normally.
class OffsetPlot : public StatisticsPlot
{
    Q_DECLARE_TR_FUNCTIONS(OffsetPlot)

public:
    explicit OffsetPlot(QWidget* parent = nullptr);

protected:
    [[nodiscard]] QString caption() const override;
    void fill() override;

private:
    void addCircle(double radiusM);
    /// \returns how it is computed
    QString addEllipse(const statistics::ErrorEllipse& ellipse);
};
