#include "lum_sdk/DpiScale.h"

#include <cmath>

namespace {
double scaleFactor = 1;
} // namespace

int dpi_scaled(int length)
{
    return static_cast<int>(std::lround(length * scaleFactor));
}

double dpi_scaled(double length)
{
    return length * scaleFactor;
}

namespace lum {

void setDpiScale(double factor)
{
    if (std::isfinite(factor) && factor > 0)
        scaleFactor = factor;
}

} // namespace lum
