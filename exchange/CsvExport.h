#pragma once

#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/WholeFileWriter.h"
#include "model/PointNumber.h"

#include <QStringList>

/// The walk through the lines that every export makes, with its progress.
///
/// \param heading the file's first line, with its end
/// \param rowOf   `std::string_view(point)`: its line with the end, or nothing for one left out
/// \returns an empty text, or why the file could not be written; it then stands as it was
template <class Points, class RowOf>
QString exportCsv(const QString& path, const QString& caption, std::string_view heading,
                  const Points& points, const QStringList& lines, ProgressReporter& progress,
                  RowOf rowOf)
{
    lum::WholeFileWriter file(path);
    if (!file.fault().isEmpty())
        return file.fault();
    file.write(heading);
    const auto total = static_cast<std::size_t>(lines.size());
    std::size_t done = 0;
    for (const QString& lineNumber : lines) {
        ++done;
        const auto* const line = points.findLine(lineNumber.toStdString());
        if (line == nullptr)
            continue;
        for (const auto* const point : writtenOrder(*line))
            file.write(rowOf(*point));
        if (!file.fault().isEmpty())
            break;
        progress.report(caption, done, total);
    }
    QString fault = file.commit();
    progress.hide();
    return fault;
}
