#pragma once

#include "exchange/DesignChoice.h"
#include "protocol/Outcome.h"

class ICoordTransform;
class ProgressReporter;

/// Writes design points and their lines as KML, for viewing on a globe. Their positions are what
/// `transform` makes of their plane coordinates in direction 2. A point's name is its number.
///
/// A point that cannot be transformed is left out, and the outcome has a notice that counts them.
/// \returns why it failed, such as for want of a coordinate system; the file is then as it was
Outcome writeDesignKml(const QString& path, const DesignChoice& choice, ICoordTransform& transform,
                       ProgressReporter& progress);
