#include "exchange/SurveyCsvReader.h"

#include "basalt_utilities/KeyList.h"
#include "exchange/CsvFields.h"
#include "exchange/CsvImport.h"
#include "exchange/SurveyRowReader.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

namespace {

/// Fills `point`; or counts the line as skipped, unless it is empty or none of the points.
bool readLine(std::string_view line, SurveyRowReader& rows, SurveyPoint& point,
              ImportSummary& summary)
{
    if (!rows.hasHeading()) {
        rows.readHeading(line);
        return false;
    }
    if (rows.read(line, point)) {
        for (const SurveyRowReader::Misread& field : rows.misread())
            summary.misread([&] {
                return QCoreApplication::translate("SurveyCsv", "%1 \"%2\" cannot be read.")
                    .arg(lum::toQString(field.caption), shownField(field.text));
            });
        return true;
    }
    if (!basalt::trimmed(line).empty())
        summary.skip(
            [] { return QCoreApplication::translate("SurveyCsv", "The point has no number."); });
    return false;
}

} // namespace

bool readSurveyCsv(const QString& path, SurveyPoints& points, ProgressReporter& progress,
                   ImportSummary& summary)
{
    SurveyRowReader rows;
    SurveyPointFiler filer(points);
    const bool isRead = importCsv(
        path, QCoreApplication::translate("SurveyCsv", "Import Survey Data"), points, progress,
        summary,
        [&](std::string_view line, SurveyPoint& point, ImportSummary& skipped) {
            return readLine(line, rows, point, skipped);
        },
        [&](SurveyPoint&& point) -> const SurveyPoint& { return filer.file(std::move(point)); });
    if (isRead && !rows.hasHeading() && summary.linesRead > 0)
        summary.remark = QCoreApplication::translate(
            "SurveyCsv", "No line holds the captions of line number and point number.");
    return isRead;
}
