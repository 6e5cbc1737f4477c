#pragma once

#include "exchange/CoordPairs.h"

/// The differences of two coordinate systems on one axis, transformed minus stored.
struct AxisFigures
{
    double mean = 0;
    double deviation = 0; ///< standard deviation by n - 1; not a number for a single difference
    double rms = 0;       ///< by n
    double largest = 0;   ///< the difference of the largest absolute value, with its sign
    std::size_t largestRow = 0;
};

struct DifferenceFigures
{
    std::size_t count = 0; ///< rows whose three differences are numbers; others do not count
    AxisFigures north;
    AxisFigures east;
    AxisFigures height;
};

[[nodiscard]] DifferenceFigures differenceFigures(const CoordPairs& pairs);
