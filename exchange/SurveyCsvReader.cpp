#include "exchange/SurveyCsvReader.h"

#include "basalt_utilities/KeyList.h"
#include "exchange/CsvFields.h"
#include "exchange/CsvImport.h"
#include "exchange/SurveyRowReader.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <QCoreApplication>

namespace {

/// Fills `point`; or answers false, and counts a line as skipped that lacks its point number.
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

Outcome readSurveyCsv(const QString& path, SurveyPoints& points, ProgressReporter& progress,
                      ImportSummary& summary)
{
    SurveyRowReader rows;
    SurveyPoints staged;
    SurveyPointFiler filer(staged, &points);
    Outcome outcome = importCsv(
        {path, progress, summary, QCoreApplication::translate("SurveyCsv", "Import Survey Data")},
        points, staged,
        [&](std::string_view line, SurveyPoint& point, ImportSummary& counts) {
            return readLine(line, rows, point, counts);
        },
        [&](SurveyPoint&& point) { filer.file(std::move(point)); });
    if (outcome.isDone() && !rows.hasHeading() && summary.linesRead > 0)
        summary.remark = QCoreApplication::translate(
            "SurveyCsv", "No line holds the captions of line number and point number.");
    return outcome;
}
