#pragma once

#include "protocol/Outcome.h"

#include <QString>

#include <span>
#include <string_view>

struct ReportInput;

/// A report that the program makes of a project.
struct ReportKind
{
    const char* name = "";     ///< on the command line
    const char* fileName = ""; ///< where the user names no other, without its ending
    const char* ending = "";   ///< of its files: ".xlsx"
    const char* caption = "";  ///< in English, context "ReportKinds"
    /// Replaces the file at `path`, or leaves it as it was. A notice tells what was found.
    Outcome (*write)(const QString& path, const ReportInput& input) = nullptr;
    bool runsChecks = false; ///< which write their verdicts on the points

    [[nodiscard]] QString captionText() const; ///< translated
};

/// All workbooks, in the order in which they are offered.
[[nodiscard]] std::span<const ReportKind> reportKinds();

/// Null when no workbook has this name.
[[nodiscard]] const ReportKind* findReportKind(std::string_view name);
