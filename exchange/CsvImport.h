#pragma once

#include "app/protocol/ProgressReporter.h"
#include "exchange/CsvInput.h"
#include "exchange/ImportSummary.h"

#include <future>
#include <vector>

/// Points that were read, with the numbers of their lines.
template <class Point>
struct CsvBatch
{
    static constexpr std::size_t kSize = 512 * 1024 / sizeof(Point);

    std::vector<Point> points;
    std::vector<std::size_t> lines;
};

/// Fills an empty batch; it stays empty behind the last point.
template <class Point, class Read>
CsvBatch<Point> readBatch(CsvInput& input, Read& read, CsvBatch<Point> batch,
                          ImportSummary& summary)
{
    std::string_view line;
    while (batch.points.size() < CsvBatch<Point>::kSize && input.next(line)) {
        ++summary.linesRead;
        Point& point = batch.points.emplace_back();
        if (read(line, point, summary))
            batch.lines.push_back(summary.linesRead);
        else
            batch.points.pop_back();
    }
    return batch;
}

/// The walk through a file's lines that every import makes, with its progress and its summary.
/// Lines are read on a thread of their own, one batch ahead of the points that are filed.
///
/// \param read `bool(line, point, summary)`: fills the point from the line number
///             `summary.linesRead`, or answers false and counts the line as skipped where it should
/// \param file `void(Point&&)`: into `points`, in the order of the file
/// \returns false, with the reason in `summary`, when the file cannot be read
template <class Points, class Read, class File>
bool importCsv(const QString& path, const QString& caption, const Points& points,
               ProgressReporter& progress, ImportSummary& summary, Read read, File file)
{
    using Batch = CsvBatch<typename Points::Point>;
    summary.path = path;
    CsvInput input;
    if (summary.failure = input.open(path); !summary.failure.isEmpty())
        return false;
    const auto start = [&](Batch batch) {
        return std::async(std::launch::async, [&, batch = std::move(batch)]() mutable {
            return readBatch(input, read, std::move(batch), summary);
        });
    };
    const std::size_t before = points.pointCount();
    const std::size_t step = input.lineCount() / 100;
    std::size_t reported = 0;
    std::size_t taken = 0;
    Batch spare;
    std::future<Batch> coming = start({});
    for (Batch batch = coming.get(); !batch.points.empty(); batch = coming.get()) {
        coming = start(std::move(spare));
        for (std::size_t i = 0; i < batch.points.size(); ++i) {
            file(std::move(batch.points[i]));
            if (batch.lines[i] - reported < step)
                continue;
            reported = batch.lines[i];
            progress.report(caption, reported, input.lineCount());
        }
        taken += batch.points.size();
        spare = std::move(batch);
        spare.points.clear();
        spare.lines.clear();
    }
    summary.failure = input.fault();
    summary.pointsNew = points.pointCount() - before;
    summary.pointsReplaced = taken - summary.pointsNew;
    progress.hide();
    return summary.failure.isEmpty();
}
