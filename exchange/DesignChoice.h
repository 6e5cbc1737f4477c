#pragma once

#include "model/PointLines.h"

#include <QStringList>

/// The design points that an export is for.
struct DesignChoice
{
    const DesignPoints& points;
    const QStringList& lines;    ///< in this order; those that do not exist are passed over
    bool onlyUnsurveyed = false; ///< leaves out points with another status than 0
};
