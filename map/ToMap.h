#pragma once

#include <QPointF>

#include <functional>

/// From the project grid (northing, easting, in its own unit) to map coordinates.
using ToMap = std::function<QPointF(double north, double east)>;
