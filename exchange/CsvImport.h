#pragma once

#include "exchange/BatchQueue.h"
#include "exchange/CsvFaults.h"
#include "exchange/CsvInput.h"
#include "exchange/FiledRows.h"
#include "exchange/ImportSummary.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/TakenOver.h"

#include <future>
#include <vector>

/// Some points of a file, with the numbers of their lines in it.
template <class Point>
struct CsvBatch
{
    /// So many fit into a piece of memory that malloc keeps for the next batch.
    static constexpr std::size_t kSize = std::size_t(96) * 1024 / sizeof(Point);

    CsvBatch() { points.reserve(kSize); }

    std::vector<Point> points;
    std::vector<std::size_t> lines;
    std::vector<std::size_t> noted; ///< indexes of the points that the summary has places of
};

/// Notes the fields of the input's last line that hold what is no character.
void noteUndecoded(const CsvInput& input, std::string_view line, ImportSummary& summary);

/// The points of the next lines; an empty batch at the end of the file.
template <class Point, class Read>
CsvBatch<Point> readBatch(CsvInput& input, Read& read, ImportSummary& summary)
{
    CsvBatch<Point> batch;
    std::string_view line;
    while (batch.points.size() < CsvBatch<Point>::kSize && input.next(line)) {
        ++summary.linesRead;
        const std::size_t places = summary.places;
        noteUndecoded(input, line, summary);
        Point& point = batch.points.emplace_back();
        if (!read(line, point, summary)) {
            batch.points.pop_back();
            continue;
        }
        batch.lines.push_back(summary.linesRead);
        if (summary.places != places)
            batch.noted.push_back(batch.points.size() - 1);
    }
    return batch;
}

/// Reads all lines on a thread of its own and passes the batches to `use` on the calling thread. An
/// exception on either side ends both sides; the caller gets it.
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
    // The destructor of `reader` waits for the thread, so the queue must be closed before it.
    const Closing whenLeft{queue};
    while (std::optional<Batch> batch = queue.pop())
        use(*batch);
    reader.get();
}

/// What every import is told.
struct CsvImportTask
{
    const QString& path;
    ProgressReporter& progress;
    ImportSummary& summary; ///< of a failed import it holds the path alone
    QString caption;        ///< of the progress
};

/// Reads the file's points into a container of their own. \returns how many rows gave a point
template <class Points, class Read, class File>
std::size_t stagePoints(CsvInput& input, const CsvImportTask& task, Read& read, File& file,
                        FiledRows<Points>& filed)
{
    using Point = typename Points::Point;
    const std::size_t step = input.lineCount() / 100;
    std::size_t reported = 0;
    std::size_t count = 0;
    readBatches<Point>(input, read, task.summary, [&](CsvBatch<Point>& batch) {
        auto noted = batch.noted.begin();
        for (std::size_t i = 0; i < batch.points.size(); ++i) {
            const Point& point = file(std::move(batch.points[i]));
            filed.add(point, batch.lines[i]);
            if (noted != batch.noted.end() && *noted == i) {
                filed.keepName(point, batch.lines[i]);
                ++noted;
            }
            if (batch.lines[i] - reported < step)
                continue;
            reported = batch.lines[i];
            task.progress.report(task.caption, reported, input.lineCount());
        }
        count += batch.points.size();
    });
    return count;
}

/// Adds the points of a file to `points`, all of them or none, with progress and a summary.
///
/// \param staged empty; where `file` puts the points until the whole file is read
/// \param read   `bool(line, point, summary)`, called on another thread: fills the point from the
///               line number `summary.linesRead`; or answers false and, when the line should have
///               been a point, counts it as skipped
/// \param file   `Point&(Point&&)`, called in the order of the file: puts a point into `staged`
/// \param undo   filled when it is not null
/// \returns why it failed; `points` is then as it was before
template <class Points, class Read, class File>
Outcome importCsv(const CsvImportTask& task, Points& points, Points& staged, Read read, File file,
                  TakenOver<Points>* undo = nullptr)
{
    ImportSummary& summary = task.summary;
    summary = {};
    summary.path = task.path;
    QString fault;
    try {
        CsvInput input;
        if (fault = input.open(task.path); !fault.isEmpty())
            return cannotRead(task.path, fault);
        summary.encoding = nameOf(input.encoding());
        FiledRows<Points> filed(points, staged);
        const std::size_t rows = stagePoints<Points>(input, task, read, file, filed);
        fault = input.fault();
        if (fault.isEmpty()) {
            filed.tell(summary);
            const std::size_t distinct = staged.pointCount();
            summary.pointsRepeated = rows - distinct;
            summary.pointsReplaced = takeOver(points, std::move(staged), undo);
            summary.pointsNew = distinct - summary.pointsReplaced;
            summary.replaced.count = summary.pointsReplaced;
        }
    } catch (const std::exception& exception) {
        fault = reasonOf(exception);
    }
    task.progress.hide();
    if (fault.isEmpty())
        return Outcome::done();
    summary = {};
    summary.path = task.path;
    return readingBrokeOff(task.path, fault);
}
