#pragma once

#include "plots/PlotData.h"
#include "plots/PlotKinds.h"
#include "plots/StatisticsPlot.h"
#include "tests/quality/statistics/MadeSurvey.h"

#include <QtTest>

/// A survey that plots show.
struct PlottedSurvey : MadeSurvey
{
    [[nodiscard]] PlotData data() const
    {
        auto pairs =
            std::make_shared<statistics::MeasuredPairs>(statistics::resurveyPairs(results, "F", 1));
        PlotData all = PlotData::ofAll(std::make_shared<statistics::SurveySample>(sample(0)),
                                       std::move(pairs), basalt::LocalTimes(0));
        all.tolerances.metres = {0.03, 0.03, 0.03};
        return all;
    }
    /// A result beside its design.
    SurveyPoint& stake(const std::string& number, double eastM, double northM)
    {
        plan("1", number);
        SurveyPoint& point = measure("1", number);
        point.east += eastM;
        point.north += northM;
        return point;
    }
};

/// A plot of a kind on the screen.
inline std::unique_ptr<StatisticsPlot> shownPlot(const char* kind, const PlotData& data,
                                                 const QSize& size = {700, 600})
{
    auto plot = findPlotKind(kind)->make(nullptr);
    plot->resize(size);
    plot->setData(data);
    plot->show();
    if (!QTest::qWaitForWindowExposed(plot.get()))
        qFatal("the plot is not shown");
    return plot;
}

/// Where a value is on a panel's canvas.
inline QPoint placeOf(const PlotPanel& panel, double x, double y)
{
    return panel.maps().toScreen(x, y).toPoint();
}
