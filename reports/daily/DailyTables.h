#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

class DailyFigures;
struct ReportInput;

/// A table of the report as texts, before it is painted.
struct DailyTable
{
    struct Column
    {
        QString caption;
        bool isNumber = true;
        int lines = 1; ///< that a cell may have; of a number 1, a name 2, a sentence more
    };

    QString title;
    std::vector<Column> columns;
    std::vector<QStringList> rows;
    bool hasSum = false; ///< the last row
    QString note;        ///< below it; may be empty
};

/// Captions and values.
using DailyValues = std::vector<std::pair<QString, QString>>;

/// What the report is about: project, day, coordinate system, person, program.
[[nodiscard]] DailyValues dailyHead(const ReportInput& input, const DailyFigures& figures);

/// Why there is nothing of the day; a sentence.
[[nodiscard]] QString dailyGap(const ReportInput& input, const DailyFigures& figures);

/// How far the work is at the end of the day, and how long it still takes.
[[nodiscard]] DailyValues dailyProgress(const DailyFigures& figures);

/// What each surveyor did on the day.
[[nodiscard]] DailyTable dailyWork(const DailyFigures& figures);

enum class DailySpan
{
    OfDay,
    Total
};
enum class DailyKey
{
    Surveyor,
    Rover
};
/// The figures of the workbook "Quality statistics" by surveyor or rover.
[[nodiscard]] DailyTable dailyStatistics(const DailyFigures& figures, DailySpan span, DailyKey key);
