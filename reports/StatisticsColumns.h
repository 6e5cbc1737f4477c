#pragma once

#include "exchange/workbook/RowCells.h"

#include <QString>

#include <span>
#include <string_view>

struct QualityLimits;
struct StatisticsFigures;
namespace statistics {
struct Figures;
} // namespace statistics

/// A group of results in the tables of statistics.
struct StatisticsRow
{
    const statistics::Figures& figures;
    const StatisticsFigures& all; ///< that the group belongs to

    /// What the staked points are a share of.
    [[nodiscard]] std::size_t designed() const;
    [[nodiscard]] QString largestPoint() const; ///< "1001 / 10015023"
    [[nodiscard]] QString shift() const;        ///< "dE, dH"
};

/// A column behind the key of groups: a number, or a text.
struct StatisticsColumn
{
    const char* caption = ""; ///< in English
    SheetColumn::Form form = SheetColumn::Form::Text;
    int decimals = 0;
    double (*number)(const StatisticsRow&) = nullptr;
    QString (StatisticsRow::*text)() const = nullptr;
    double (*most)(const QualityLimits&) = nullptr;  ///< what is above it is coloured
    double (*least)(const QualityLimits&) = nullptr; ///< what is below it is coloured

    [[nodiscard]] QString captionText() const; ///< translated
    /// The cell as a workbook shows it; blank for a figure that cannot be told.
    [[nodiscard]] QString shownText(const StatisticsRow& row) const;
};

/// All columns, in the order of the workbook "Quality statistics".
[[nodiscard]] std::span<const StatisticsColumn> statisticsColumns();
/// \param caption of one of them
[[nodiscard]] const StatisticsColumn& statisticsColumn(std::string_view caption);

/// A figure with the digits of a workbook's cell; that of `Percent` is a share from 0 to 1.
[[nodiscard]] QString shownFigure(double value, SheetColumn::Form form, int decimals);
