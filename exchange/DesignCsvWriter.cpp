#include "exchange/DesignCsvWriter.h"

#include "exchange/CsvExport.h"
#include "exchange/CsvRow.h"
#include "exchange/DesignHeading.h"

#include <QCoreApplication>

namespace {

std::string_view headingLine(CsvRow& row)
{
    row.clear();
    for (const QString& caption : designCaptions())
        row.addText(caption.toStdString());
    return row.finished();
}

std::string_view pointLine(const DesignPoint& point, CsvRow& row)
{
    row.clear();
    row.addText(point.pointNumber);
    row.addText(point.lineNumber);
    row.addFixed(point.north, 4);
    row.addFixed(point.east, 4);
    row.addFixed(point.elevation, 4);
    row.addText(point.pointNumber); // as the design code, which our points do not have
    row.addFixed(point.azimuth, 6);
    row.addInteger(point.type);
    row.addInteger(point.status);
    return row.finished();
}

} // namespace

Outcome writeDesignCsv(const QString& path, const DesignPoints& points, const QStringList& lines,
                       bool onlyUnsurveyed, ProgressReporter& progress)
{
    CsvRow row;
    return exportCsv({path, lines, progress,
                      QCoreApplication::translate("DesignCsv", "Export Design Data"),
                      std::string(headingLine(row))},
                     points, [&](const DesignPoint& point) {
                         const bool isLeftOut = onlyUnsurveyed && point.status != 0;
                         return isLeftOut ? std::string_view() : pointLine(point, row);
                     });
}
