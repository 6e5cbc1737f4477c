#pragma once

#include <QString>
#include <qwt_scale_draw.h>

#include <cstdint>

class QwtPlot;

/// The kinds of axes.
enum class PlotScale
{
    Number,
    Count,     ///< no ticks but of whole numbers
    Moment,    ///< `toClockMs`, as date and time
    Day,       ///< likewise, as a date; no ticks but those of days
    TimeOfDay, ///< likewise, as a time
    Station    ///< with ticks of its own
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

/// Whether axes can show a moment, milliseconds since 1970 UTC; 0 is none.
[[nodiscard]] inline bool hasShownTime(std::int64_t timeMs)
{
    constexpr std::int64_t kYear2200Ms = 7'258'118'400'000;
    return timeMs > 0 && timeMs < kYear2200Ms;
}

inline constexpr double kHourMs = 3600'000.0;
inline constexpr double kDayMs = 24 * kHourMs;

/// Digits behind the point that tell ticks of this distance apart.
[[nodiscard]] int decimalsFor(double tickStep);
/// "1,234.50", alike on every desktop.
[[nodiscard]] QString numberText(double value, int decimals);
/// With no more digits than it has: "0.5", "1,000".
[[nodiscard]] QString shortText(double value);

/// The distance of an axis' ticks; 0 when it has less than two.
[[nodiscard]] double tickStepOf(const QwtScaleDiv& division);
