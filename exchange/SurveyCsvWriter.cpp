#include "exchange/SurveyCsvWriter.h"

#include "exchange/CsvExport.h"
#include "exchange/SurveyRowWriter.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/WholeFileWriter.h"

#include <QCoreApplication>

namespace {

constexpr std::size_t kPointsAStep = 1000; // of the progress

QString progressCaption()
{
    return QCoreApplication::translate("SurveyCsv", "Export Survey Data");
}

} // namespace

Outcome writeSurveyCsv(const QString& path, const SurveyPoints& points, const QStringList& lines,
                       const SurveyCsvChoice& choice, ProgressReporter& progress)
{
    SurveyRowWriter rows(choice.captions, choice.degreeFormat);
    return exportCsv({path, lines, progress, progressCaption(), std::string(rows.heading())},
                     points, [&](const SurveyPoint& point) { return rows.row(point); });
}

Outcome writeSurveyCsv(const QString& path, const SurveyPoints& points,
                       const std::vector<PointName>& names, const SurveyCsvChoice& choice,
                       ProgressReporter& progress)
{
    lum::WholeFileWriter file(path);
    SurveyRowWriter rows(choice.captions, choice.degreeFormat);
    file.write(rows.heading());
    std::size_t done = 0;
    for (const PointName& name : names) {
        if (const SurveyPoint* const point = points.find(name.line, name.point)) {
            const std::string_view row = rows.row(*point);
            if (row.empty())
                return Outcome::refused(QCoreApplication::translate(
                    "SurveyCsv", "The columns of exported files lack the line number or the point "
                                 "number. Choose them at View > Survey Columns."));
            file.write(row);
        }
        if (!file.fault().isEmpty())
            break;
        if (++done % kPointsAStep == 0)
            progress.report(progressCaption(), done, names.size());
    }
    const QString fault = file.commit();
    progress.hide();
    return fault.isEmpty() ? Outcome::done() : cannotWrite(path, fault);
}
