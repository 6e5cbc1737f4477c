#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

class IDictionary;
class ProgressReporter;
struct DesignGrid;

/// Adds the points of a grid, over those of the same numbers, and reports each line. The grid must
/// have no fault.
void generate(const DesignGrid& grid, DesignPoints& points, ProgressReporter& progress);

enum class DesignLines
{
    Both,
    Receiver,
    Source,
};

/// Replaces the whole design by the grids of the design parameters. Where both have the same
/// numbers, the source points stay.
/// \returns done, with a sentence in numbers; refused when a grid has a fault or the grids are too
///          large together. The design stays as it was unless it is done.
Outcome generateDesign(const IDictionary& parameters, DesignLines lines, DesignPoints& design,
                       ProgressReporter& progress);
