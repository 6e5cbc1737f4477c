#include "quality/ResultCsv.h"

#include "lum_sdk/files/WholeFileWriter.h"
#include "quality/ResultModel.h"

#include <QAbstractTableModel>
#include <QCoreApplication>

#include <algorithm>

QByteArray csvField(const QString& text)
{
    QByteArray field = text.toUtf8();
    if (std::any_of(field.cbegin(), field.cend(),
                    [](char c) { return c == ',' || c == '"' || c == '\n' || c == '\r'; }))
        field = '"' + field.replace("\"", "\"\"") + '"';
    return field;
}

void formatResultCsv(const QAbstractTableModel& result, ResultCsv kind, const CsvLineWriter& write)
{
    const bool isForScripts = kind == ResultCsv::ForScripts;
    const int captionRole = isForScripts ? result_role::kEnglish : Qt::DisplayRole;
    const int numberRole = isForScripts ? result_role::kPointNumber : Qt::DisplayRole;
    const int columns = result.columnCount();
    QByteArray line;
    const auto writeLine = [&](const auto& valueOf) {
        line.clear();
        for (int column = 0; column < columns; ++column)
            line += csvField(valueOf(column).toString()) + (column + 1 < columns ? ',' : '\n');
        write({line.constData(), static_cast<std::size_t>(line.size())});
    };
    writeLine([&](int column) { return result.headerData(column, Qt::Horizontal, captionRole); });
    for (int row = 0; row < result.rowCount(); ++row)
        writeLine([&](int column) {
            return result.index(row, column).data(column == 0 ? numberRole : Qt::DisplayRole);
        });
}

Outcome writeResultCsv(const QString& file, const QAbstractTableModel& result, ResultCsv kind)
{
    return writeCsvFile(file,
                        [&](const CsvLineWriter& write) { formatResultCsv(result, kind, write); });
}

Outcome writeCsvFile(const QString& file,
                     const std::function<void(const CsvLineWriter& write)>& format)
{
    lum::WholeFileWriter writer(file);
    if (writer.fault().isEmpty())
        format([&](std::string_view line) { writer.write(line); });
    const QString reason = writer.commit();
    if (reason.isEmpty())
        return Outcome::done();
    return Outcome::failed(
        QCoreApplication::translate("ResultCsv", "The file \"%1\" cannot be written: %2.")
            .arg(file, reason),
        QStringLiteral("Cannot write \"%1\": %2").arg(file, reason).toStdString());
}
