#pragma once

#include <QProcess>
#include <QString>

/// The text of a PDF as it stands on the pages, one blank between words.
inline QString textOfPdf(const QString& path)
{
    QProcess reader;
    reader.start(QStringLiteral("pdftotext"),
                 {QStringLiteral("-layout"), path, QStringLiteral("-")});
    if (!reader.waitForFinished() || reader.exitCode() != 0)
        qFatal("pdftotext does not work");
    return QString::fromUtf8(reader.readAllStandardOutput()).simplified();
}
