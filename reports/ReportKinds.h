#pragma once

#include "protocol/Outcome.h"

#include <QString>

#include <span>
#include <string_view>

struct ReportInput;

/// A workbook that the program makes of a project.
struct ReportKind
{
    const char* name;     ///< on the command line
    const char* fileName; ///< where the user names no other, without its ending
    const char* caption;  ///< in English
    /// Replaces the file at `path`, or leaves it as it was. A notice tells what was found.
    Outcome (*write)(const QString& path, const ReportInput& input);

    [[nodiscard]] QString captionText() const; ///< translated
};

/// All of them, in the order in which they are offered.
[[nodiscard]] std::span<const ReportKind> reportKinds();

/// Null when no report has this name.
[[nodiscard]] const ReportKind* findReportKind(std::string_view name);

/// The names of all reports, in the order of the table.
[[nodiscard]] std::string reportNames(std::string_view separator);
