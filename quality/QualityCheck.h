#pragma once

#include "model/PointLines.h"

class IDictionary;
class ProgressReporter;
struct QualityLimits;

/// The verdict on a survey result as one integer: each family of tests has a decimal digit, counted
/// from the units. 0 when all tests passed. A value on its limit passes.
///
/// | digit | family                | adds |
/// |-------|-----------------------|------------------------------------------------------------|
/// | 0     | deviation from design | 1 horizontally, 2 vertically                               |
/// | 1     | resurvey              | 0; the resurvey check writes this digit                    |
/// | 2     | reference station     | 1 too far                                                  |
/// | 3     | accuracy              | 1 HRMS, 2 VRMS                                             |
/// | 4     | antenna height        | 1 too high, otherwise 2 too low                            |
/// | 5     | dilution of precision | 1 PDOP, 2 HDOP, 4 VDOP, each too high or too low           |
/// | 6     | satellites            | 1 too few                                                  |
/// | 7     | line deviation        | 1 across the line, 2 along it                              |
[[nodiscard]] int qualityCode(const SurveyPoint& point, const QualityLimits& limits);

/// Judges every result by `parameters` ("qc_param.ini") and writes the code on it, in place of the
/// old one with its resurvey digit. Reports progress after each result, from 0 to 100 in every
/// line. A result whose position is no number passes, and is named in the log.
/// \param planeUnitM metres a unit of the plane coordinates
void checkQuality(SurveyPoints& points, const IDictionary& parameters, ProgressReporter& progress,
                  double planeUnitM = 1);
