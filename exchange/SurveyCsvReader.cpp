#include "exchange/SurveyCsvReader.h"

#include "basalt_utilities/KeyList.h"
#include "exchange/CsvImport.h"
#include "exchange/SurveyRowReader.h"
#include "project/model/PointNumber.h"

#include <QCoreApplication>

bool readSurveyCsv(const QString& path, SurveyPoints& points, ProgressReporter& progress,
                   ImportSummary& summary)
{
    SurveyRowReader rows;
    SurveyPointFiler filer(points);
    const auto take = [&](std::string_view line, std::size_t number) {
        if (!rows.hasHeading()) {
            rows.readHeading(line);
            return false;
        }
        SurveyPoint point;
        if (rows.read(line, point)) {
            filer.file(std::move(point));
            return true;
        }
        if (!basalt::trimmed(line).empty())
            summary.skip(number, [] {
                return QCoreApplication::translate("SurveyCsv", "The point has no number.");
            });
        return false;
    };
    const QString caption = QCoreApplication::translate("SurveyCsv", "Import Survey Data");
    if (!importCsv(path, caption, points, progress, summary, take))
        return false;
    if (!rows.hasHeading() && summary.linesRead > 0)
        summary.remark = QCoreApplication::translate(
            "SurveyCsv", "No line holds the captions of line number and point number.");
    return true;
}
