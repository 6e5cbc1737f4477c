#include "basalt_utilities/Utf8.h"
#include "exchange/CsvFields.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "exchange/SurveyRowReader.h"
#include "exchange/SurveyRowWriter.h"
#include "FuzzFile.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "model/PointNumber.h"

#include <cmath>

namespace {

/// Checks one field, by its type.
struct IsWhole
{
    const SurveyPoint& point;

    void operator()(double SurveyPoint::*field) const
    {
        hold(std::isfinite(point.*field), "what is taken are numbers");
    }
    void operator()(std::string SurveyPoint::*field) const
    {
        hold(basalt::isUtf8(point.*field), "what is taken is UTF-8");
        hold((point.*field).find_first_of(",\n") == std::string::npos,
             "a field holds no separator");
    }
    void operator()(std::int32_t SurveyPoint::* /*field*/) const {}
    void operator()(std::int64_t SurveyPoint::* /*field*/) const {}
};

/// A point that was read is written and read again without a change.
void comesBack(const SurveyPoint& point)
{
    const std::string_view number = writtenPointNumber(point.pointNumber);
    if (withoutBlanks(number) != number || withoutBlanks(point.lineNumber) != point.lineNumber)
        return; // a check point's number that begins or ends with a blank, which reading drops
    static SurveyRowWriter writer(surveyCaptions(), 0);
    static SurveyRowReader reader = [] {
        const std::string heading(writer.heading());
        const auto found = SurveyHeadings().find(heading.substr(0, heading.size() - 1));
        hold(found.has_value(), "the heading is known");
        return SurveyRowReader(*found);
    }();
    const std::string row(writer.row(point));
    SurveyPoint again;
    hold(reader.read(std::string_view(row).substr(0, row.size() - 1), again), "the row is read");
    hold(writer.row(again) == row, "writing again gives the same row");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const FuzzFile file(data, size);
    SurveyPoints points;
    ProgressReporter progress(nullptr);
    ImportSummary summary;
    hold(readSurveyCsv(file.path(), points, progress, summary).isDone(), "the file can be read");
    for (const auto& [number, line] : points) {
        hold(!number.empty(), "a line has a number");
        for (const SurveyPoint& point : line) {
            hold(!point.pointNumber.empty() && point.lineNumber == number,
                 "a point is where it says");
            for (const SurveyColumn& column : surveyColumns())
                std::visit(IsWhole{point}, column.member);
            comesBack(point);
        }
    }
    hold(points.pointCount() == summary.pointsNew, "the summary counts the points");
    return 0;
}
