#pragma once

#include "exchange/BatchQueue.h"
#include "exchange/CsvInput.h"
#include "exchange/ImportSummary.h"
#include "exchange/KnownPoints.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <future>
#include <vector>

/// Points that were read, with the numbers of their lines.
template <class Point>
struct CsvBatch
{
    static constexpr std::size_t kSize =
        std::size_t(96) * 1024 / sizeof(Point); // malloc keeps that at hand

    CsvBatch() { points.reserve(kSize); }

    std::vector<Point> points;
    std::vector<std::size_t> lines;
};

/// The points of the next lines; an empty batch behind the last.
template <class Point, class Read>
CsvBatch<Point> readBatch(CsvInput& input, Read& read, ImportSummary& summary)
{
    CsvBatch<Point> batch;
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

/// Reads all lines on a thread of its own, ahead of `use`, which gets one batch after the other.
template <class Point, class Read, class Use>
void readBatches(CsvInput& input, Read& read, ImportSummary& summary, Use use)
{
    using Batch = CsvBatch<Point>;
    struct Closing
    {
        BatchQueue<Batch>& queue;
        ~Closing() { queue.close(); }
    };
    BatchQueue<Batch> queue;
    std::future<void> reader = std::async(std::launch::async, [&] {
        const Closing atEnd{queue};
        for (Batch batch = readBatch<Point>(input, read, summary); !batch.points.empty();
             batch = readBatch<Point>(input, read, summary)) {
            if (!queue.push(std::move(batch)))
                return;
        }
    });
    const Closing whenLeft{queue}; // before the reader is waited for
    while (std::optional<Batch> batch = queue.pop())
        use(*batch);
    reader.get();
}

/// The walk through a file's lines that every import makes, with its progress and its summary.
///
/// \param read `bool(line, point, summary)`, called on another thread: fills the point from the
///             line number `summary.linesRead`, or answers false and counts the line as skipped
///             where it should
/// \param file `const Point&(Point&&)`: into `points`, in the order of the file
/// \returns false, with the reason in `summary`, when the file cannot be read
template <class Points, class Read, class File>
bool importCsv(const QString& path, const QString& caption, const Points& points,
               ProgressReporter& progress, ImportSummary& summary, Read read, File file)
{
    using Point = typename Points::Point;
    summary = {};
    summary.path = path;
    CsvInput input;
    if (summary.failure = input.open(path); !summary.failure.isEmpty())
        return false;
    KnownPoints known(points);
    const std::size_t before = points.pointCount();
    const std::size_t step = input.lineCount() / 100;
    std::size_t reported = 0;
    std::size_t taken = 0;
    readBatches<Point>(input, read, summary, [&](CsvBatch<Point>& batch) {
        for (std::size_t i = 0; i < batch.points.size(); ++i) {
            if (known.take(file(std::move(batch.points[i]))))
                ++summary.pointsReplaced;
            if (batch.lines[i] - reported < step)
                continue;
            reported = batch.lines[i];
            progress.report(caption, reported, input.lineCount());
        }
        taken += batch.points.size();
    });
    summary.failure = input.fault();
    summary.pointsNew = points.pointCount() - before;
    summary.pointsRepeated = taken - summary.pointsNew - summary.pointsReplaced;
    progress.hide();
    return summary.failure.isEmpty();
}
