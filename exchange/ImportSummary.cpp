#include "exchange/ImportSummary.h"

#include "model/SurveyPoint.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Findings = ImportSummary::Findings;

/// How a kind of findings is told.
struct KindTexts
{
    Findings ImportSummary::*findings;
    const char* caption; ///< in a list
    const char* count;   ///< null when another line of the numbers has it
    const char* further; ///< behind the first places; null when the text names none of them
};

constexpr KindTexts kKinds[] = {
    {&ImportSummary::skipped, QT_TRANSLATE_NOOP("ImportSummary", "Skipped line"), nullptr,
     QT_TRANSLATE_NOOP("ImportSummary", "Further lines skipped: %1.")},
    {&ImportSummary::undecoded, QT_TRANSLATE_NOOP("ImportSummary", "Damaged bytes"), nullptr,
     QT_TRANSLATE_NOOP("ImportSummary", "Further fields with such bytes: %1.")},
    {&ImportSummary::misread, QT_TRANSLATE_NOOP("ImportSummary", "Unread field"),
     QT_TRANSLATE_NOOP("ImportSummary", "Fields that cannot be read and became 0: %1."),
     QT_TRANSLATE_NOOP("ImportSummary", "Further fields that cannot be read: %1.")},
    {&ImportSummary::changed, QT_TRANSLATE_NOOP("ImportSummary", "Changed field"),
     QT_TRANSLATE_NOOP("ImportSummary", "Fields taken for something else: %1."),
     QT_TRANSLATE_NOOP("ImportSummary", "Further fields taken for something else: %1.")},
    {&ImportSummary::surplus, QT_TRANSLATE_NOOP("ImportSummary", "Cut off fields"),
     QT_TRANSLATE_NOOP("ImportSummary",
                       "Lines with too many fields, of which the last are cut off: %1. A comma in "
                       "a text begins a new field."),
     QT_TRANSLATE_NOOP("ImportSummary", "Further lines with too many fields: %1.")},
    {&ImportSummary::shorter, QT_TRANSLATE_NOOP("ImportSummary", "Missing fields"),
     QT_TRANSLATE_NOOP("ImportSummary",
                       "Lines with fewer fields than the heading: %1. What is missing is empty."),
     QT_TRANSLATE_NOOP("ImportSummary", "Further lines with fewer fields: %1.")},
    {&ImportSummary::repeated, QT_TRANSLATE_NOOP("ImportSummary", "Repeated row"), nullptr,
     nullptr},
    {&ImportSummary::replaced, QT_TRANSLATE_NOOP("ImportSummary", "Replaced point"), nullptr,
     nullptr},
};

QString translated(const char* text)
{
    return QCoreApplication::translate("ImportSummary", text);
}

/// Why a file without a fault gave no point; null when it gave one, or when something else tells
/// it.
QString whyNoPoint(const ImportSummary& summary)
{
    if (summary.linesRead == 0 && summary.isDatabase)
        return translated(QT_TRANSLATE_NOOP("ImportSummary", "The database holds no result."));
    if (summary.linesRead == 0)
        return translated(QT_TRANSLATE_NOOP("ImportSummary", "The file is empty."));
    const std::size_t points = summary.pointsNew + summary.pointsReplaced;
    if (points != 0 || summary.skipped.count != 0 || !summary.remarks.isEmpty())
        return {};
    return translated(QT_TRANSLATE_NOOP("ImportSummary", "The file holds no row of a point."));
}

/// The file as a whole: its lines, its encoding.
QStringList fileLines(const ImportSummary& summary)
{
    QStringList lines;
    const char* const counts =
        summary.isDatabase
            ? QT_TRANSLATE_NOOP("ImportSummary",
                                "\"%1\": results read: %2, points added: %3, points replaced: %4, "
                                "results skipped: %5.")
            : QT_TRANSLATE_NOOP("ImportSummary",
                                "\"%1\": lines read: %2, points added: %3, points replaced: %4, "
                                "lines skipped: %5.");
    lines << translated(counts).arg(
        summary.path, QString::number(summary.linesRead), QString::number(summary.pointsNew),
        QString::number(summary.pointsReplaced), QString::number(summary.skipped.count));
    if (summary.encoding != ImportSummary().encoding)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary", "The file's encoding is %1."))
                     .arg(summary.encoding);
    if (summary.undecoded.count != 0)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary",
                                              "Fields with bytes that are no %1: %2. If the file "
                                              "has another encoding, save it as UTF-8 and import "
                                              "it again."))
                     .arg(summary.encoding, QString::number(summary.undecoded.count));
    if (const QString why = whyNoPoint(summary); !why.isEmpty())
        lines << why;
    return lines + summary.remarks;
}

/// What became of the points' rows, a number a line.
QStringList rowLines(const ImportSummary& summary)
{
    QStringList lines;
    if (summary.pointsRepeated != 0)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary",
                                              "Rows replaced by a later row of the same point "
                                              "in the file: %1."))
                     .arg(summary.pointsRepeated);
    if (summary.pointsWithoutLine != 0)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary",
                                              "Rows without a line number: %1. A check point goes "
                                              "to the line in its number, any other to \"%2\"."))
                     .arg(QString::number(summary.pointsWithoutLine), QLatin1String(kEmptyLine));
    for (const KindTexts& kind : kKinds) {
        const std::size_t count = (summary.*kind.findings).count;
        if (kind.count != nullptr && count != 0)
            lines << translated(kind.count).arg(count);
    }
    if (summary.decimalsDropped != 0)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary",
                                              "Fields of whole numbers whose decimals were "
                                              "dropped: %1."))
                     .arg(summary.decimalsDropped);
    return lines;
}

} // namespace

QStringList ImportSummary::numbers() const
{
    return fileLines(*this) + rowLines(*this);
}

QString ImportSummary::toText() const
{
    QStringList lines = numbers();
    const QString place = isDatabase
                              ? translated(QT_TRANSLATE_NOOP("ImportSummary", "Result %1: %2"))
                              : translated(QT_TRANSLATE_NOOP("ImportSummary", "Line %1: %2"));
    for (const KindTexts& kind : kKinds) {
        if (kind.further == nullptr)
            continue;
        const Findings& findings = this->*kind.findings;
        const std::size_t shown = std::min(findings.mostShown, findings.first.size());
        for (std::size_t i = 0; i < shown; ++i)
            lines << place.arg(QString::number(findings.first[i].line), findings.first[i].text);
        if (findings.count > shown)
            lines << translated(kind.further).arg(findings.count - shown);
    }
    return lines.join(QLatin1Char('\n'));
}

std::vector<ImportSummary::Kind> ImportSummary::kinds() const
{
    std::vector<Kind> kinds;
    for (const KindTexts& kind : kKinds) {
        const Findings& findings = this->*kind.findings;
        if (findings.count != 0)
            kinds.push_back({translated(kind.caption), findings});
    }
    return kinds;
}
