#include "exchange/ImportSummary.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ImportSummary", text);
}

/// The first lines with a fault, and how many there are more.
void append(QStringList& lines, const std::vector<ImportSummary::Fault>& faults,
            std::size_t furtherCount, const char* further)
{
    for (const ImportSummary::Fault& fault : faults)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary", "Line %1: %2"))
                     .arg(QString::number(fault.line), fault.reason);
    if (furtherCount != 0)
        lines << translated(further).arg(furtherCount);
}

} // namespace

QString ImportSummary::toText() const
{
    QStringList lines;
    lines << translated(QT_TRANSLATE_NOOP("ImportSummary",
                                          "\"%1\": lines read: %2, points added: %3, points "
                                          "replaced: %4, lines skipped: %5."))
                 .arg(path, QString::number(linesRead), QString::number(pointsNew),
                      QString::number(pointsReplaced), QString::number(linesSkipped));
    if (!remark.isEmpty())
        lines << remark;
    append(lines, faults, linesSkipped - faults.size(),
           QT_TRANSLATE_NOOP("ImportSummary", "Further lines skipped: %1."));
    if (pointsRepeated != 0)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary",
                                              "Rows replaced by a later row of the same point "
                                              "in the file: %1."))
                     .arg(pointsRepeated);
    if (fieldsMisread != 0)
        lines << translated(
                     QT_TRANSLATE_NOOP("ImportSummary",
                                       "Fields of added points that cannot be read and are left "
                                       "empty: %1."))
                     .arg(fieldsMisread);
    append(lines, misreadFields, fieldsMisread - misreadFields.size(),
           QT_TRANSLATE_NOOP("ImportSummary", "Further fields that cannot be read: %1."));
    return lines.join(QLatin1Char('\n'));
}
