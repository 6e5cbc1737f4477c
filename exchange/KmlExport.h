#pragma once

#include "exchange/KmlFile.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/PointNumber.h"
#include "protocol/Outcome.h"

#include <QFileInfo>
#include <QStringList>

#include <vector>

/// What every KML export is told.
struct KmlExportTask
{
    const QString& path;
    const QStringList& lines; ///< in this order; lines that do not exist are passed over
    ICoordTransform& transform;
    ProgressReporter& progress;
    QString caption; ///< of the progress
    const char* pointLayer;
    const char* lineLayer; ///< null for points alone
};

/// The positions on the globe of points on the plane, and what could not be transformed.
class KmlPositions
{
public:
    explicit KmlPositions(ICoordTransform& transform) : m_transform(transform) {}

    /// Why no point can be transformed; empty when points can.
    [[nodiscard]] QString systemFault() const;

    /// Transforms the points of a line, which then have a position or none.
    template <class Point>
    void transform(const std::vector<const Point*>& points)
    {
        m_triples.clear();
        for (const Point* point : points)
            m_triples.push_back({point->north, point->east, point->elevation});
        if (const std::size_t first = transformAll(); first < points.size() && m_firstFault == 0)
            keepFirst(points[first]->lineNumber, points[first]->pointNumber, m_codes[first]);
    }
    /// Of the point at `index` of the line; null when it has none.
    [[nodiscard]] const CoordTriple* at(std::size_t index) const
    {
        return m_codes[index] == 0 ? &m_triples[index] : nullptr;
    }

    [[nodiscard]] std::size_t failed() const { return m_failed; }
    /// A sentence about the points without a position; empty when all have one.
    [[nodiscard]] QString notice() const;

private:
    /// \returns the first that failed; the size when none did
    [[nodiscard]] std::size_t transformAll();
    void keepFirst(const std::string& line, const std::string& point, std::int32_t code);

    ICoordTransform& m_transform;
    std::vector<CoordTriple> m_triples;
    std::vector<std::int32_t> m_codes;
    std::size_t m_failed = 0;
    std::int32_t m_firstFault = 0;
    QString m_firstPlace;
};

/// The lines of a layer, kept until its points are written.
class KmlLines
{
public:
    void begin() { m_start = m_positions.size(); }
    void add(const CoordTriple& position) { m_positions.push_back(position); }
    /// \param label the line's; nothing is kept of a line without positions
    void end(KmlLabel&& label);
    void writeTo(KmlFile& file) const;
    [[nodiscard]] bool isEmpty() const { return m_positions.empty(); }

private:
    struct Line
    {
        KmlLabel label;
        std::size_t end = 0; ///< in the positions
    };
    std::vector<CoordTriple> m_positions;
    std::vector<Line> m_lines;
    std::size_t m_start = 0;
};

/// Closes the file and says how the export ended.
[[nodiscard]] Outcome finishKml(const KmlExportTask& task, KmlFile& file,
                                const KmlPositions& positions, bool hasPoints);
/// Why the export cannot begin; done when it can.
[[nodiscard]] Outcome checkKml(const KmlExportTask& task, const KmlPositions& positions);

/// Writes the points of the chosen lines into one layer and mostly the lines into another, with
/// progress.
/// A point that cannot be transformed is left out; the notice tells how many, and the first.
///
/// \param isChosen  `bool(point)`
/// \param labelOf   `void(point, KmlLabel&)`: fills all of the label
/// \param lineLabel `KmlLabel(first point of the line, number of positions)`
/// \returns why it failed; the file is then as it was before
template <class Points, class IsChosen, class LabelOf, class LineLabel>
Outcome exportKml(const KmlExportTask& task, const Points& points, IsChosen isChosen,
                  LabelOf labelOf, LineLabel lineLabel)
{
    KmlPositions positions(task.transform);
    if (Outcome check = checkKml(task, positions); !check.isDone())
        return check;
    KmlFile file(task.path, QFileInfo(task.path).completeBaseName());
    file.beginPoints(task.pointLayer);
    KmlLines lines;
    KmlLabel label;
    std::size_t done = 0;
    for (const QString& lineNumber : task.lines) {
        ++done;
        const auto* const line = points.findLine(lineNumber.toStdString());
        if (line == nullptr)
            continue;
        auto chosen = writtenOrder(*line);
        std::erase_if(chosen, [&](const auto* point) { return !isChosen(*point); });
        positions.transform(chosen);
        std::size_t written = 0;
        lines.begin();
        for (std::size_t i = 0; i < chosen.size(); ++i) {
            const CoordTriple* const position = positions.at(i);
            if (position == nullptr)
                continue;
            labelOf(*chosen[i], label);
            file.addPoint(label, *position);
            lines.add(*position);
            ++written;
        }
        lines.end(lineLabel(*line->begin(), written));
        if (!file.fault().isEmpty())
            break;
        task.progress.report(task.caption, done, static_cast<std::size_t>(task.lines.size()));
    }
    if (task.lineLayer != nullptr) {
        file.beginLines(task.lineLayer);
        lines.writeTo(file);
    }
    return finishKml(task, file, positions, !lines.isEmpty());
}
