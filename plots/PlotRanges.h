#pragma once

#include <qwt_interval.h>

#include <initializer_list>
#include <vector>

/// What an axis shows.
struct PlotRanges
{
    QwtInterval usual; ///< without the few values that lie far from all others
    QwtInterval all;
};

/// The largest magnitude that plots show; what is beyond it is taken for no number.
inline constexpr double kLargestShown = 1e9;
[[nodiscard]] bool isShown(double value);

/// Ranges with a little room at both ends. Values that are not shown are left out.
/// \param marks  limits and the like, that are seen as well when they are not far from the values
/// \param least  the smallest width
[[nodiscard]] PlotRanges rangesOf(std::vector<double> values, std::initializer_list<double> marks,
                                  double least);

/// The same for values from 0 upward: both ranges begin there.
[[nodiscard]] PlotRanges rangesFromZero(std::vector<double> values,
                                        std::initializer_list<double> marks, double least);

/// A range with `share` of its width more at both ends.
[[nodiscard]] QwtInterval widened(const QwtInterval& range, double share);
