#pragma once

#include "quality/problems/TextStore.h"

#include <QString>

#include <cstdint>
#include <limits>

struct Problem;

enum class Severity : std::uint8_t
{
    Note, ///< good to know; nobody must do anything
    Warning,
    Error
};

/// A kind of problem, one constant each. Its name stands on the command line and in the project's
/// acceptances, which are kept for years: it is never changed.
struct ProblemKind
{
    const char* name = nullptr;    ///< "too_far"
    const char* caption = nullptr; ///< in English, context "ProblemKinds"
    Severity severity = Severity::Warning;
    /// What is wrong: a translated sentence, made when it is shown.
    QString (*what)(const Problem& problem) = nullptr;
    const char* unit = "m"; ///< of value, limit and second
    int decimals = 3;       ///< with which value and limit are shown
    /// The text of a value or limit that is no plain number, such as a solution type; mostly null.
    QString (*valueText)(double value) = nullptr;
    /// Its place among the kinds of its severity in a list: what others follow from comes first.
    int rank = 2;

    [[nodiscard]] QString captionText() const; ///< translated
};

/// A sentence, and how many problems follow from this one.
[[nodiscard]] QString withFollowing(const QString& sentence, const Problem& problem);

/// Of a value that a problem has not.
inline constexpr double kNoValue = std::numeric_limits<double>::quiet_NaN();

/// Something that is wrong with a point, a line or a group of results. Its texts belong to its
/// `ProblemList`; lengths are metres, also in a project in feet.
struct Problem
{
    const ProblemKind* kind = nullptr;
    StoredText line;      ///< of the point, or a line; empty for a group of results
    StoredText point;     ///< its number in memory, with the counter of a check point; or empty
    StoredText otherLine; ///< of another point that the problem speaks of; or empty
    StoredText otherPoint;
    StoredText rover; ///< its serial number; empty for a design point, as surveyor and time
    StoredText surveyor;
    StoredText detail; ///< what else `what` needs, such as a base station
    double value = kNoValue;
    double limit = kNoValue;   ///< that the value is over or under
    double second = kNoValue;  ///< another value that `what` needs
    std::int64_t timeMs = 0;   ///< since 1970 UTC; 0 without one
    std::uint32_t count = 0;   ///< of what it is about, for a group
    std::uint32_t follows = 0; ///< problems of single points that it explains and replaces
    bool isDesign = false;     ///< the point is one of the design, otherwise a result
    bool isAccepted = false;   ///< somebody has said that it may be so
};
static_assert(sizeof(Problem) <= 112); // an office may have a million of them
