#pragma once

#include <QString>

#include <vector>

class Page;
class Workbook;
struct ReportInput;

// The sheets that all reports have.

/// How many points a report judges.
struct JudgedPoints
{
    std::size_t judged = 0;
    std::size_t notJudged = 0;
    QString reason; ///< why those were not; a translated sentence
};

/// A figure of a report, and what it means.
struct FigureDefinition
{
    QString figure;
    QString definition;
};

/// The page "Summary", the first of every report, still empty.
[[nodiscard]] Page& addSummary(Workbook& book);

/// Begins a summary with its head: project, coordinate system, heights, period, program, limits,
/// sign convention, points judged and not judged.
/// \param title the report's name
void writeSummaryHead(Page& page, const QString& title, const ReportInput& input,
                      const JudgedPoints& points);

/// Adds the sheet "Limits", the last of every report: each limit in words with its key, value and
/// unit, and below them the definitions of the report's figures.
void addLimitsSheet(Workbook& book, const ReportInput& input,
                    const std::vector<FigureDefinition>& definitions);
