#include "plots/PlotScales.h"

#include <QDateTime>
#include <QLocale>
#include <qwt_date_scale_draw.h>
#include <qwt_date_scale_engine.h>
#include <qwt_plot.h>
#include <qwt_scale_engine.h>

#include <algorithm>
#include <cmath>

namespace {

class NumberDraw : public QwtScaleDraw
{
public:
    [[nodiscard]] QwtText label(double value) const override
    {
        return {numberText(value, decimalsFor(tickStepOf(scaleDiv()))), QwtText::PlainText};
    }
};

/// One tick tells no distance, so there are two in the lowest plot.
class NumberEngine : public QwtLinearScaleEngine
{
public:
    [[nodiscard]] QwtScaleDiv divideScale(double from, double to, int mostTicks, int mostMinor,
                                          double step) const override
    {
        constexpr int kTries = 4;
        QwtScaleDiv division;
        for (int more = 0; more < kTries && tickStepOf(division) == 0; ++more)
            division =
                QwtLinearScaleEngine::divideScale(from, to, mostTicks + more, mostMinor, step);
        return division;
    }
};

/// Has no ticks between whole numbers.
class CountEngine : public NumberEngine
{
public:
    [[nodiscard]] QwtScaleDiv divideScale(double from, double to, int mostTicks, int mostMinor,
                                          double step) const override
    {
        QwtScaleDiv division = NumberEngine::divideScale(from, to, mostTicks, mostMinor, step);
        const double distance = tickStepOf(division);
        return distance == 0 || distance >= 1
                   ? division
                   : NumberEngine::divideScale(from, to, mostTicks, mostMinor, 1);
    }
};

/// Has no ticks between days.
class DayEngine : public QwtDateScaleEngine
{
public:
    DayEngine() : QwtDateScaleEngine(Qt::UTC) {}

    [[nodiscard]] QwtDate::IntervalType intervalType(const QDateTime& from, const QDateTime& to,
                                                     int maxSteps) const override
    {
        return std::max(QwtDate::Day, QwtDateScaleEngine::intervalType(from, to, maxSteps));
    }
};

const QString kTime = QStringLiteral("hh:mm");
const QString kSeconds = QStringLiteral("hh:mm:ss");
const QString kDay = QStringLiteral("yyyy-MM-dd");

QwtDateScaleDraw* makeDraw(PlotScale scale)
{
    auto* const draw = new QwtDateScaleDraw(Qt::UTC); // the axis owns it
    const QString below = scale == PlotScale::TimeOfDay ? QString() : QLatin1Char('\n') + kDay;
    draw->setDateFormat(QwtDate::Millisecond, QStringLiteral("hh:mm:ss.zzz") + below);
    draw->setDateFormat(QwtDate::Second, kSeconds + below);
    draw->setDateFormat(QwtDate::Minute, kTime + below);
    draw->setDateFormat(QwtDate::Hour, kTime + below);
    draw->setDateFormat(QwtDate::Day, scale == PlotScale::TimeOfDay ? kTime : kDay);
    draw->setDateFormat(QwtDate::Week, kDay);
    draw->setDateFormat(QwtDate::Month, QStringLiteral("yyyy-MM"));
    draw->setDateFormat(QwtDate::Year, QStringLiteral("yyyy"));
    return draw;
}

} // namespace

int decimalsFor(double tickStep)
{
    if (!(tickStep > 0) || !std::isfinite(tickStep))
        return 0;
    return std::clamp(int(-std::floor(std::log10(tickStep) + 1e-6)), 0, 9);
}

QString numberText(double value, int decimals)
{
    const double smallest = 0.5 * std::pow(10, -decimals);
    return QLocale(QLocale::English)
        .toString(std::fabs(value) < smallest ? 0.0 : value, 'f', decimals); // no "-0"
}

QString shortText(double value)
{
    int decimals = 0;
    double power = 1;
    while (decimals < 4 && std::fabs(value - std::round(value * power) / power) > 1e-9) {
        ++decimals;
        power *= 10;
    }
    return numberText(value, decimals);
}

double tickStepOf(const QwtScaleDiv& division)
{
    const QList<double> ticks = division.ticks(QwtScaleDiv::MajorTick);
    return ticks.size() < 2 ? 0 : std::fabs(ticks[1] - ticks[0]);
}

void setScale(QwtPlot& plot, int axis, PlotScale scale)
{
    if (scale == PlotScale::Number || scale == PlotScale::Count) {
        plot.setAxisScaleEngine(axis,
                                scale == PlotScale::Count ? new CountEngine : new NumberEngine);
        plot.setAxisScaleDraw(axis, new NumberDraw);
        return;
    }
    plot.setAxisScaleEngine(axis, scale == PlotScale::Day ? new DayEngine
                                                          : new QwtDateScaleEngine(Qt::UTC));
    plot.setAxisScaleDraw(axis, makeDraw(scale));
}

QString scaleText(PlotScale scale, double value, double tickStep)
{
    if (scale == PlotScale::Number)
        return numberText(value, std::min(decimalsFor(tickStep) + 3, 4));
    const QDateTime moment = QDateTime::fromMSecsSinceEpoch(std::int64_t(value), Qt::UTC);
    if (scale == PlotScale::Day)
        return moment.toString(kDay);
    return moment.toString(scale == PlotScale::TimeOfDay ? kSeconds
                                                         : kDay + QLatin1Char(' ') + kSeconds);
}
