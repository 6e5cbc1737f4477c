#include "exchange/DesignCsvReader.h"

#include "basalt_utilities/FixedDecimals.h"
#include "basalt_utilities/KeyList.h"
#include "exchange/CsvFields.h"
#include "exchange/CsvImport.h"
#include "exchange/DesignHeading.h"
#include "exchange/SurveyHeadings.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace {

constexpr std::size_t kFieldCount = 8;
constexpr std::size_t kType = 6;
using Fields = std::array<std::string_view, kFieldCount>;

QString translated(const char* text)
{
    return QCoreApplication::translate("DesignCsv", text);
}

bool isWholeField(std::size_t index)
{
    return index >= kType;
}

/// False when the line has fewer fields.
bool split(CsvFields& line, Fields& fields)
{
    return std::all_of(fields.begin(), fields.end(),
                       [&](std::string_view& field) { return line.next(field); });
}

/// False when one of the numbers cannot be read.
bool convert(const Fields& fields, DesignPoint& point)
{
    const auto type = basalt::wholeInteger(fields[kType]);
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
    return std::none_of(fields.begin() + 2, fields.end(), [](std::string_view field) {
        return basalt::wholeDecimal(field).has_value();
    });
}

/// Whether the line has the nine fields of an export, in which a design code, mostly the point
/// number again, stands before the azimuth.
bool isExported(std::string_view line)
{
    std::array<std::string_view, kFieldCount + 1> fields;
    CsvFields rest(line);
    for (std::string_view& field : fields) {
        if (!rest.next(field))
            return false;
    }
    const bool isCode = fields[5] == fields[0] || !basalt::wholeInteger(fields[6]);
    DesignPoint point;
    return rest.isDone() && isCode &&
           convert({fields[0], fields[1], fields[2], fields[3], fields[4], fields[6], fields[7],
                    fields[8]},
                   point);
}

QString numberFault(const Fields& fields)
{
    for (std::size_t i = 2; i < kFieldCount; ++i) {
        if (isWholeField(i) ? basalt::wholeInteger(fields[i]).has_value()
                            : basalt::wholeDecimal(fields[i]).has_value())
            continue;
        const std::string_view text = basalt::trimmed(fields[i]);
        const bool isLetter = i == kType && text.size() == 1 &&
                              std::string_view("RSrs").find(text[0]) != std::string_view::npos;
        return translated(isLetter ? QT_TRANSLATE_NOOP(
                                         "DesignCsv", "Field %1, \"%2\", is no integer. A receiver "
                                                      "has 1 there, a source 0.")
                          : isWholeField(i)
                              ? QT_TRANSLATE_NOOP("DesignCsv", "Field %1, \"%2\", is no integer.")
                              : QT_TRANSLATE_NOOP("DesignCsv", "Field %1, \"%2\", is no number."))
            .arg(QString::number(i + 1), shownField(fields[i]));
    }
    return {};
}

/// Why a line has fewer fields than it should.
QString countFault(std::string_view line)
{
    QString fault = translated(QT_TRANSLATE_NOOP("DesignCsv", "There are fewer than %1 fields."))
                        .arg(kFieldCount);
    if (line.find('\0') != std::string_view::npos)
        fault += QLatin1Char(' ') + zeroBytes();
    for (const char separator : {';', '\t'}) {
        const auto count = std::count(line.begin(), line.end(), separator);
        if (static_cast<std::size_t>(count) + 1 >= kFieldCount)
            fault += QLatin1Char(' ') + otherSeparator(separator);
    }
    return fault;
}

/// Design points from the lines of a file, and what the file is instead when it is none of theirs.
class Rows
{
public:
    /// Fills `point`; or answers false and counts the line as skipped, unless it is empty or a
    /// heading.
    bool read(std::string_view line, DesignPoint& point, ImportSummary& summary)
    {
        Fields fields;
        CsvFields rest(line);
        const bool isWhole = split(rest, fields);
        if (isWhole && convert(fields, point)) {
            if (!rest.isDone())
                noteSurplus(line, rest.rest(), summary);
            return true;
        }
        if (summary.linesRead == 1)
            lookAtHeading(line);
        if (!isWhole && !basalt::trimmed(line).empty())
            summary.note(summary.skipped, [&] { return countFault(line); });
        if (isWhole && (summary.linesRead > 1 || !isHeading(fields)))
            noteSkipped(line, fields, summary);
        return false;
    }

    /// To be called behind the last line.
    void addRemarks(ImportSummary& summary) const
    {
        if (m_hasExportHeading || 2 * m_exportedLines > summary.linesRead)
            summary.remarks << translated(QT_TRANSLATE_NOOP(
                "DesignCsv",
                "This is an exported design file: it has nine fields, with the design "
                "code as the sixth. An import reads eight; take the design code out."));
        else if (m_isSurvey && !summary.hasPoints())
            summary.remarks << translated(QT_TRANSLATE_NOOP(
                "DesignCsv", "Line 1 is the heading of survey results. Import them as such."));
    }

private:
    void lookAtHeading(std::string_view line)
    {
        const std::vector<Language> languages = allLanguages();
        const bool isDesign = isDesignHeading(line, languages);
        m_hasExportHeading = isDesign && !fieldAt(line, kFieldCount + 1).empty();
        m_isSurvey = !isDesign && SurveyHeadings(languages).find(line).has_value();
    }

    void noteSkipped(std::string_view line, const Fields& fields, ImportSummary& summary)
    {
        const bool hasCode = isExported(line);
        m_exportedLines += hasCode ? 1U : 0U;
        summary.note(summary.skipped,
                     [&] {
                         return hasCode
                                    ? translated(QT_TRANSLATE_NOOP("DesignCsv",
                                                                   "It has the nine fields of an "
                                                                   "exported design file."))
                                    : numberFault(fields);
                     },
                     {std::string(fields[1]), std::string(fields[0])});
    }

    void noteSurplus(std::string_view line, std::string_view rest, ImportSummary& summary)
    {
        if (rest.find_first_not_of(", \t") == std::string_view::npos)
            return; // nothing is lost
        m_exportedLines += isExported(line) ? 1U : 0U;
        summary.note(summary.surplus, [&] { return surplusText(kFieldCount, rest); });
    }

    bool m_hasExportHeading = false;
    std::size_t m_exportedLines = 0; ///< in the layout of an export, which has a field more
    bool m_isSurvey = false;
};

} // namespace

bool isDesignRow(std::string_view line)
{
    Fields fields;
    CsvFields rest(line);
    DesignPoint point;
    return (split(rest, fields) && convert(fields, point)) || isExported(line);
}

Outcome readDesignCsv(const QString& path, DesignPoints& points, ProgressReporter& progress,
                      ImportSummary& summary, TakenOver<DesignPoints>* undo)
{
    Rows rows;
    DesignPoints staged;
    Outcome outcome = importCsv(
        {path, progress, summary, QCoreApplication::translate("DesignCsv", "Import Design Data")},
        points, staged,
        [&](std::string_view line, DesignPoint& point, ImportSummary& counts) {
            return rows.read(line, point, counts);
        },
        [&](DesignPoint&& point) -> DesignPoint& { return staged.set(std::move(point)); }, undo);
    if (outcome.isDone())
        rows.addRemarks(summary);
    return outcome;
}
