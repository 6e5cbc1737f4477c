#pragma once

#include <QString>
#include <qwt_scale_draw.h>

#include <cstdint>

class QwtPlot;

/// The kinds of axes.
enum class PlotScale
{
    Number,
    Moment,   ///< `clockOf`, as date and time
    TimeOfDay ///< likewise, without a date
};

/// Sets up an axis of a plot.
/// \param axis of `QwtPlot::Axis`
void setScale(QwtPlot& plot, int axis, PlotScale scale);

/// A value of an axis as a text, with three digits more than its ticks.
[[nodiscard]] QString scaleText(PlotScale scale, double value, double tickStep);

/// Milliseconds of the shown zone's clocks, which axes count as if they were of Greenwich.
[[nodiscard]] inline double toClockMs(std::int64_t clockSeconds)
{
    return double(clockSeconds) * 1000;
}

inline constexpr double kHourMs = 3600'000.0;
inline constexpr double kDayMs = 24 * kHourMs;

/// Digits behind the point that tell ticks of this distance apart.
[[nodiscard]] int decimalsFor(double tickStep);
/// "1,234.50", alike on every desktop.
[[nodiscard]] QString numberText(double value, int decimals);

/// The distance of an axis' ticks; 0 when it has less than two.
[[nodiscard]] double tickStepOf(const QwtScaleDiv& division);
