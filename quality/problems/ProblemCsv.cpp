#include "quality/problems/ProblemCsv.h"

#include "quality/problems/ProblemColumns.h"

void formatProblemCsv(std::span<const Problem* const> problems, ResultCsv kind,
                      basalt::LocalTimes zone, const CsvLineWriter& write)
{
    const bool isForScripts = kind == ResultCsv::ForScripts;
    const std::span<const ProblemColumn> columns = problemColumns();
    QByteArray line;
    const auto writeLine = [&](const auto& textOf) {
        line.clear();
        for (const ProblemColumn& column : columns)
            line += csvField(textOf(column)) + (&column != &columns.back() ? ',' : '\n');
        write({line.constData(), static_cast<std::size_t>(line.size())});
    };
    writeLine([&](const ProblemColumn& column) {
        return isForScripts ? QString::fromLatin1(column.caption) : column.captionText();
    });
    const auto textOf = [&](const ProblemColumn& column) {
        if (isForScripts)
            return column.forScripts;
        return column.forSpreadsheets == nullptr ? column.text : column.forSpreadsheets;
    };
    for (const Problem* const problem : problems)
        writeLine([&](const ProblemColumn& column) { return textOf(column)(*problem, zone); });
}

Outcome writeProblemCsv(const QString& file, std::span<const Problem* const> problems,
                        ResultCsv kind, basalt::LocalTimes zone)
{
    return writeCsvFile(file, [&](const CsvLineWriter& write) {
        formatProblemCsv(problems, kind, std::move(zone), write);
    });
}
