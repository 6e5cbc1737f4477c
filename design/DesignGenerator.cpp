#include "design/DesignGenerator.h"

#include "design/DesignFaults.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/GroupedNumber.h"

#include <QCoreApplication>

#include <new>

namespace {

/// A line of a grid.
struct LineToMake
{
    const DesignGrid& grid;
    const GridPlaces& places;
    std::int64_t number;
    std::int64_t index; ///< counted from 0
};

void makeLine(const LineToMake& line, DesignPoints& points)
{
    const DesignGrid& grid = line.grid;
    std::string lineNumber;
    appendDesignNumber(lineNumber, line.number, grid.lineDigits);
    std::int64_t index = 0;
    for (std::int64_t number = grid.firstPointNumber(); number <= grid.pointEnd;
         number += grid.pointStep) {
        const DesignPlace place =
            line.places.at(static_cast<double>(line.index), static_cast<double>(index++));
        DesignPoint point;
        point.lineNumber = lineNumber;
        point.pointNumber = lineNumber;
        appendDesignNumber(point.pointNumber, number, grid.pointDigits);
        point.north = place[0];
        point.east = place[1];
        point.azimuth = grid.azimuth;
        point.type = static_cast<std::int32_t>(grid.kind);
        points.set(std::move(point));
    }
}

QString caption(GridKind kind)
{
    return kind == GridKind::Receiver
               ? QCoreApplication::translate("DesignGenerator", "Design R-Design Data")
               : QCoreApplication::translate("DesignGenerator", "Design S-Design Data");
}

bool isWanted(GridKind kind, DesignLines lines)
{
    return lines == DesignLines::Both ||
           (lines == DesignLines::Receiver) == (kind == GridKind::Receiver);
}

/// A translated sentence with numbers in the place of %1, %2 and so on.
QString sentence(const char* text, std::initializer_list<std::int64_t> numbers)
{
    QString filled = QCoreApplication::translate("DesignGenerator", text);
    for (const std::int64_t number : numbers)
        filled = filled.arg(lum::groupedNumber(number));
    return filled;
}

/// What the status bar tells of a new design.
QString tidings(std::size_t before, std::size_t now, std::int64_t shared)
{
    const auto old = static_cast<std::int64_t>(before);
    const auto made = static_cast<std::int64_t>(now);
    QString text =
        old == 0
            ? sentence(QT_TRANSLATE_NOOP("DesignGenerator", "%1 design points generated"), {made})
            : sentence(QT_TRANSLATE_NOOP("DesignGenerator", "%1 design points replaced by %2"),
                       {old, made});
    if (shared != 0)
        text += sentence(QT_TRANSLATE_NOOP("DesignGenerator",
                                           "; %1 receiver points had the numbers of source points "
                                           "and were left out"),
                         {shared});
    return text;
}

Outcome tooLarge(double points)
{
    return Outcome::refused(sentence(
        QT_TRANSLATE_NOOP("DesignGenerator",
                          "The design would have %1 points. At most %2 points in all."),
        {static_cast<std::int64_t>(points), static_cast<std::int64_t>(kMostDesignPoints)}));
}

} // namespace

void generate(const DesignGrid& grid, DesignPoints& points, ProgressReporter& progress)
{
    const GridPlaces places(grid);
    if (grid.lineCount() > 0) {
        // Of all lines of the survey, also those before the first one that is generated.
        const std::int64_t total = (grid.lineEnd - grid.lineStart) / grid.lineStep + 1;
        ProgressSteps steps(progress, caption(grid.kind).toStdString(),
                            static_cast<std::size_t>(total));
        std::int64_t index = 0;
        for (std::int64_t number = grid.firstLineNumber(); number <= grid.lineEnd;
             number += grid.lineStep) {
            makeLine({grid, places, number, index++}, points);
            steps.next();
        }
    }
    progress.hide();
}

Outcome generateDesign(const IDictionary& parameters, DesignLines lines, DesignPoints& design,
                       ProgressReporter& progress, DesignPoints* before)
{
    std::vector<DesignGrid> grids;
    double points = 0;
    for (const GridKind kind : kGridKinds) {
        if (!isWanted(kind, lines))
            continue;
        if (const auto faults = faultsOf(parameters, kind); !faults.empty())
            return Outcome::refused(faults.front().text);
        points += grids.emplace_back(DesignGrid::from(parameters, kind)).pointCount();
    }
    if (points > kMostDesignPoints)
        return tooLarge(points);
    try {
        DesignPoints made;
        for (const DesignGrid& grid : grids)
            generate(grid, made, progress);
        const std::size_t now = made.pointCount();
        Outcome outcome = Outcome::done(
            tidings(design.pointCount(), now,
                    static_cast<std::int64_t>(points) - static_cast<std::int64_t>(now)));
        std::swap(design, made);
        if (before != nullptr)
            *before = std::move(made);
        return outcome;
    } catch (const std::bad_alloc&) {
        return Outcome::failed(
            sentence(QT_TRANSLATE_NOOP("DesignGenerator",
                                       "There is not enough memory for %1 design points."),
                     {static_cast<std::int64_t>(points)}));
    }
}
