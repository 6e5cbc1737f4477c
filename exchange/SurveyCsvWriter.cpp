#include "exchange/SurveyCsvWriter.h"

#include "exchange/CsvExport.h"
#include "exchange/SurveyRowWriter.h"

#include <QCoreApplication>

Outcome writeSurveyCsv(const QString& path, const SurveyPoints& points, const QStringList& lines,
                       const SurveyCsvChoice& choice, ProgressReporter& progress)
{
    SurveyRowWriter rows(choice.captions, choice.degreeFormat);
    return exportCsv({path, lines, progress,
                      QCoreApplication::translate("SurveyCsv", "Export Survey Data"),
                      std::string(rows.heading())},
                     points, [&](const SurveyPoint& point) { return rows.row(point); });
}
