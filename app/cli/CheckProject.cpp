#include "app/cli/CheckProject.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/files/WholeFile.h"
#include "model/PointNumber.h"
#include "quality/QualityDescription.h"

#include <QFileInfo>

#include <cstdio>

namespace {

constexpr int kDecimals = 3;

/// A field that other programs take for one whatever is in it.
QByteArray field(QByteArray text)
{
    if (text.contains(',') || text.contains('"'))
        text = '"' + text.replace("\"", "\"\"") + '"';
    return text;
}

QByteArray qualityRows(const DataProcessDataManager& manager)
{
    QByteArray csv = "Point Num,Line Num,Describe,Value,Limit\n";
    for (const QualityRow& row : manager.describeQuality()) {
        const std::string_view point = writtenPointNumber(row.pointNumber);
        csv += field(QByteArray(point.data(), static_cast<int>(point.size()))) + ',' +
               field(QByteArray::fromStdString(row.lineNumber)) + ',' + field(row.text().toUtf8()) +
               ',' + QByteArray::fromStdString(basalt::formatFixed(row.value, kDecimals)) + ',' +
               QByteArray::fromStdString(basalt::formatFixed(row.limit, kDecimals)) + '\n';
    }
    return csv;
}

} // namespace

Outcome checkProject(const CliArguments& arguments)
{
    if (arguments.places[1] != QLatin1String("quality"))
        return Outcome::refused(
            QStringLiteral("there is no check \"%1\"; there is quality").arg(arguments.places[1]));
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Change);
        !opening.isDone())
        return opening;
    project.manager().checkQuality();
    const QByteArray rows = qualityRows(project.manager());
    if (Outcome saving = project.save(); !saving.isDone())
        return saving;
    const QString out = arguments.option(QStringLiteral("--out"));
    if (out.isEmpty()) {
        std::fwrite(rows.constData(), 1, static_cast<std::size_t>(rows.size()), stdout);
        return Outcome::done();
    }
    const QString fault = lum::writeWholeFile(out, rows);
    return fault.isEmpty()
               ? Outcome::done()
               : Outcome::failed(QStringLiteral("Cannot write \"%1\": %2").arg(out, fault));
}
