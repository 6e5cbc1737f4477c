#pragma once

#include <QString>

#include <span>
#include <string_view>

class IDictionary;

/// A limit of the problems: a key of "qc_param.ini" that the checks do not read. Lengths are
/// metres, times seconds. 0 switches off what it limits, unless its description says otherwise.
struct ProblemLimit
{
    const char* key;
    const char* fallback; ///< the value of a project that does not have the key
    const char* caption;  ///< in English, context "ProblemLimits"
    const char* unit;
    double largest; ///< that may be entered
    bool isWhole = false;
    const char* description = "";   ///< in English, context "ProblemLimits"; for what needs one
    std::span<const int> choices{}; ///< when only these values may be entered, 0 for off
    /// The text of a choice but 0.
    QString (*choiceText)(int choice) = nullptr;
};

/// Limits that stand together in the dialog of the limits.
struct ProblemLimitGroup
{
    const char* caption; ///< in English, context "ProblemLimits"
    std::span<const ProblemLimit> limits;
};

/// All of them, in the order in which they are shown.
[[nodiscard]] std::span<const ProblemLimitGroup> problemLimitGroups();

/// Null when there is no such key.
[[nodiscard]] const ProblemLimit* findProblemLimit(std::string_view key);

/// The value of a key of the tables, or its fallback. The minus of a negative one is ignored, and
/// what is no number is 0.
[[nodiscard]] double problemLimit(const IDictionary& parameters, std::string_view key);
