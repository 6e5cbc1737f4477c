#pragma once

#include "model/SurveyColumns.h"

#include <QString>

#include <array>
#include <span>

struct QualityLimits;

/// A value of a result beside the limit that it is judged by; lengths in metres. Of a range, the
/// minimum is the limit of a value below it, and the maximum that of any other.
struct JudgedValue
{
    enum class Verdict
    {
        Passes,
        IsOver, ///< also when the sign does not count and the value is negative
        IsUnder
    };

    double value = 0;
    double limit = 0;
    Verdict verdict = Verdict::Passes;
};

/// One test of the quality check.
struct QualityTest
{
    int power = 0;  ///< its digit of the quality code (QualityCheck.h), counted from the units
    int weight = 0; ///< what its failure adds to the digit
    JudgedValue (*judge)(const SurveyPoint& point, const QualityLimits& limits) = nullptr;
    std::array<SurveyColumn::Member, 2> fields; ///< what is wrong when it fails; may be one field
    const char* name = "";                      ///< of the value, in English
    const char* unit = "";
};

namespace quality_test {

extern const QualityTest kDesignHorizontal;
extern const QualityTest kDesignVertical;
extern const QualityTest kBaseDistance;
extern const QualityTest kHrms;
extern const QualityTest kVrms;
extern const QualityTest kAntennaHigh;
extern const QualityTest kAntennaLow;
extern const QualityTest kPdop;
extern const QualityTest kHdop;
extern const QualityTest kVdop;
extern const QualityTest kSatellites;
extern const QualityTest kAcross;
extern const QualityTest kAlong;

} // namespace quality_test

/// All tests, by their digits, counted from the units.
[[nodiscard]] std::span<const QualityTest* const> qualityTests();

/// A digit of the quality code; 0 of a code that is negative.
/// \param power counted from the units
[[nodiscard]] int qualityDigit(int code, int power);

/// The test of a field that the result did not pass in the last quality check; null when there is
/// none.
[[nodiscard]] const QualityTest* failedTest(const SurveyPoint& point,
                                            const SurveyColumn::Member& field);

/// A translated sentence with value and limit: "PDOP 7.20 is over its limit 6.00." The limits may
/// have changed since the check.
[[nodiscard]] QString failureText(const QualityTest& test, const SurveyPoint& point,
                                  const QualityLimits& limits);
/// The same for a value that was judged earlier.
[[nodiscard]] QString failureText(const QualityTest& test, JudgedValue judged);
