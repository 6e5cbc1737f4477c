#include "basalt_utilities/Utf8.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/ImportSummary.h"
#include "FuzzFile.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <cmath>

namespace {

void isWhole(const DesignPoint& point)
{
    for (double value : {point.north, point.east, point.elevation, point.azimuth})
        hold(std::isfinite(value), "what is taken are numbers");
    for (const std::string& text : {point.lineNumber, point.pointNumber}) {
        hold(basalt::isUtf8(text), "what is taken is UTF-8");
        hold(text.find_first_of(",\n") == std::string::npos, "a field holds no separator");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const FuzzFile file(data, size);
    DesignPoints points;
    points.set({"old", "point", 1, 2, 3, 4, 5, 6});
    ProgressReporter progress(nullptr);
    ImportSummary summary;
    hold(readDesignCsv(file.path(), points, progress, summary).isDone(), "the file can be read");
    hold(points.find("old", "point") != nullptr, "an import leaves other points");
    for (const auto& [number, line] : points) {
        for (const DesignPoint& point : line)
            isWhole(point);
    }
    hold(points.pointCount() == summary.pointsNew + 1, "the summary counts the points");
    hold(summary.pointsNew + summary.pointsReplaced + summary.skipped.count <= summary.linesRead,
         "a line becomes one point at most");
    hold(!summary.toText().isEmpty(), "there is always something to say");
    return 0;
}
