#pragma once

#include "model/PointLines.h"

class IDictionary;
class ProgressReporter;
struct QualityLimits;

/// The verdict on a survey result as one integer, a decimal digit a family of tests, counted from
/// the units; 0 when all passed. On the limit passes.
///
/// | digit | family                | adds |
/// |-------|-----------------------|------------------------------------------------------------|
/// | 0     | deviation from design | 1 horizontally, 2 vertically                               |
/// | 1     | resurvey              | the resurvey check's, 0 here                               |
/// | 2     | reference station     | 1 too far                                                  |
/// | 3     | accuracy              | 1 HRMS, 2 VRMS                                             |
/// | 4     | antenna height        | 1 too high, otherwise 2 too low                            |
/// | 5     | dilution of precision | 1 PDOP, 2 HDOP, 4 VDOP, each too high or too low           |
/// | 6     | satellites            | 1 too few                                                  |
/// | 7     | line deviation        | 1 across the line, 2 along it                              |
[[nodiscard]] int qualityCode(const SurveyPoint& point, const QualityLimits& limits);

/// Judges every result by `parameters` and writes the code on it; what a resurvey check wrote there
/// goes. Reports after each result, from 0 to 100 in every line. The log names results whose
/// position is no number, which passes.
void checkQuality(SurveyPoints& points, const IDictionary& parameters, ProgressReporter& progress);
