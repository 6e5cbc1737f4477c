#pragma once

#include <QString>

struct QualityTest;

// The tests of the quality check in a few translated words, which fit a cell and a chart.

/// "Antenna too low".
[[nodiscard]] QString qualityTestName(const QualityTest& test);

/// With the unit of its value: "Antenna too low (m)".
[[nodiscard]] QString qualityTestNameWithUnit(const QualityTest& test);

/// The tests that a quality code tells to have failed: "PDOP; VDOP".
[[nodiscard]] QString failedTestNames(int code);
