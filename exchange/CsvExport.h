#pragma once

#include "exchange/CsvFaults.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/WholeFileWriter.h"
#include "model/PointNumber.h"

#include <QStringList>

/// What every export is told.
struct CsvExportTask
{
    const QString& path;
    const QStringList& lines; ///< in this order; lines that do not exist are passed over
    ProgressReporter& progress;
    QString caption;     ///< of the progress
    std::string heading; ///< the first line, with its end
};

/// Writes the points of the chosen lines, line by line, with progress.
///
/// \param rowOf `std::string_view(point)`: its row with the end; empty for a point to leave out
/// \returns why it failed; the file is then as it was before
template <class Points, class RowOf>
Outcome exportCsv(const CsvExportTask& task, const Points& points, RowOf rowOf)
{
    lum::WholeFileWriter file(task.path);
    if (!file.fault().isEmpty())
        return cannotWrite(task.path, file.fault());
    file.write(task.heading);
    const auto total = static_cast<std::size_t>(task.lines.size());
    std::size_t done = 0;
    for (const QString& lineNumber : task.lines) {
        ++done;
        const auto* const line = points.findLine(lineNumber.toStdString());
        if (line == nullptr)
            continue;
        for (const auto* const point : writtenOrder(*line))
            file.write(rowOf(*point));
        if (!file.fault().isEmpty())
            break;
        task.progress.report(task.caption, done, total);
    }
    const QString fault = file.commit();
    task.progress.hide();
    return fault.isEmpty() ? Outcome::done() : cannotWrite(task.path, fault);
}
