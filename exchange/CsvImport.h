#pragma once

#include "app/protocol/ProgressReporter.h"
#include "exchange/CsvInput.h"
#include "exchange/ImportSummary.h"

/// The walk through a file's lines that every import makes, with its progress and its summary.
///
/// \param take  `bool(line, number)`: whether a line, counted from 1, became a point; progress is
///              shown behind one that did, about a hundred times
/// \returns false, with the reason in `summary`, when the file cannot be read
template <class Points, class Take>
bool importCsv(const QString& path, const QString& caption, const Points& points,
               ProgressReporter& progress, ImportSummary& summary, Take take)
{
    summary.path = path;
    CsvInput input;
    if (summary.failure = input.open(path); !summary.failure.isEmpty())
        return false;
    const std::size_t before = points.pointCount();
    const std::size_t step = input.lineCount() / 100;
    std::size_t sinceReport = 0;
    std::size_t taken = 0;
    std::string_view line;
    while (input.next(line)) {
        ++summary.linesRead;
        ++sinceReport;
        if (!take(line, summary.linesRead))
            continue;
        ++taken;
        if (sinceReport < step)
            continue;
        progress.report(caption, summary.linesRead, input.lineCount());
        sinceReport = 0;
    }
    summary.failure = input.fault();
    summary.pointsNew = points.pointCount() - before;
    summary.pointsReplaced = taken - summary.pointsNew;
    progress.hide();
    return summary.failure.isEmpty();
}
