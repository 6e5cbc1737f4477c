#include "exchange/ImportSummary.h"

#include <QCoreApplication>
#include <QStringList>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ImportSummary", text);
}

} // namespace

QString ImportSummary::toText() const
{
    QStringList lines;
    if (!failure.isEmpty())
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary", "\"%1\" cannot be read: %2"))
                     .arg(path, failure);
    if (!failure.isEmpty() && linesRead == 0)
        return lines.first();
    lines << translated(QT_TRANSLATE_NOOP("ImportSummary", "Lines read: %1, points added: %2, "
                                                           "points replaced: %3, lines skipped: "
                                                           "%4."))
                 .arg(linesRead)
                 .arg(pointsNew)
                 .arg(pointsReplaced)
                 .arg(linesSkipped);
    if (!remark.isEmpty())
        lines << remark;
    for (const Fault& fault : faults)
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary", "Line %1: %2"))
                     .arg(QString::number(fault.line), fault.reason);
    if (linesSkipped > faults.size())
        lines << translated(QT_TRANSLATE_NOOP("ImportSummary", "Further lines skipped: %1."))
                     .arg(linesSkipped - faults.size());
    return lines.join(QLatin1Char('\n'));
}
