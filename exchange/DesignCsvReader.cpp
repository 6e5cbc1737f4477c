#include "exchange/DesignCsvReader.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/KeyList.h"
#include "exchange/CsvFields.h"
#include "exchange/CsvImport.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr std::size_t kFieldCount = 8;
using Fields = std::array<std::string_view, kFieldCount>;

/// False when the line has fewer fields.
bool split(std::string_view line, Fields& fields)
{
    CsvFields rest(line);
    for (std::string_view& field : fields) {
        if (!rest.next(field))
            return false;
    }
    return true;
}

/// False when one of the numbers cannot be read.
bool convert(const Fields& fields, DesignPoint& point)
{
    const auto type = basalt::wholeInteger(fields[6]);
    const auto north = basalt::wholeDecimal(fields[2]);
    const auto east = basalt::wholeDecimal(fields[3]);
    const auto elevation = basalt::wholeDecimal(fields[4]);
    const auto azimuth = basalt::wholeDecimal(fields[5]);
    const auto status = basalt::wholeInteger(fields[7]);
    if (!type || !north || !east || !elevation || !azimuth || !status)
        return false;
    point.lineNumber = fields[1];
    point.pointNumber = fields[0];
    point.north = *north;
    point.east = *east;
    point.elevation = *elevation;
    point.azimuth = *azimuth;
    point.type = *type;
    point.status = *status;
    return true;
}

/// Whether none of the columns of numbers holds one.
bool isHeading(const Fields& fields)
{
    for (std::size_t i = 2; i < kFieldCount; ++i) {
        if (basalt::wholeDecimal(fields[i]))
            return false;
    }
    return true;
}

QString numberFault(const Fields& fields)
{
    for (std::size_t i = 2; i < kFieldCount; ++i) {
        const bool isWhole = i >= 6;
        if (isWhole ? basalt::wholeInteger(fields[i]).has_value()
                    : basalt::wholeDecimal(fields[i]).has_value())
            continue;
        return (isWhole
                    ? QCoreApplication::translate("DesignCsv", "Field %1, \"%2\", is no integer.")
                    : QCoreApplication::translate("DesignCsv", "Field %1, \"%2\", is no number."))
            .arg(QString::number(i + 1), shownField(fields[i]));
    }
    return {};
}

/// Fills `point`; or answers false and counts the line as skipped, unless it is empty or a heading.
bool readLine(std::string_view line, DesignPoint& point, ImportSummary& summary)
{
    Fields fields;
    if (!split(line, fields)) {
        if (!basalt::trimmed(line).empty())
            summary.skip([] {
                return QCoreApplication::translate("DesignCsv", "There are fewer than %1 fields.")
                    .arg(kFieldCount);
            });
        return false;
    }
    if (convert(fields, point))
        return true;
    if (summary.linesRead > 1 || !isHeading(fields))
        summary.skip([&] { return numberFault(fields); });
    return false;
}

} // namespace

Outcome readDesignCsv(const QString& path, DesignPoints& points, ProgressReporter& progress,
                      ImportSummary& summary)
{
    DesignPoints staged;
    return importCsv(
        {path, progress, summary, QCoreApplication::translate("DesignCsv", "Import Design Data")},
        points, staged, readLine, [&](DesignPoint&& point) { staged.set(std::move(point)); });
}
