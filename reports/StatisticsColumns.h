#pragma once

#include "exchange/workbook/RowCells.h"
#include "quality/QualityLimits.h"
#include "quality/statistics/Figures.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

/// A group of results in a table of groups.
struct StatisticsRow
{
    const statistics::Figures& figures;
    const statistics::SurveySample& sample;
    std::size_t stakedUntilThen = 0; ///< of a day: on it and before
};

/// A figure of groups: a number or a text. The workbook "Quality statistics" has a column of its
/// sheets for it, the window "Statistics" one of its table.
struct StatisticsColumn
{
    using Form = SheetColumn::Form;
    /// The result that a figure is of, among the group's.
    using Worst = std::optional<std::uint32_t> (*)(const StatisticsRow& row,
                                                   std::span<const std::uint32_t> members);

    const char* caption = ""; ///< in English
    Form form = Form::Text;
    int decimals = 0;
    double (*number)(const StatisticsRow& row) = nullptr; ///< `kUnknown` for a blank
    QString (*text)(const StatisticsRow& row) = nullptr;
    double (*most)(const QualityLimits&) = nullptr;  ///< what is above it is coloured
    double (*least)(const QualityLimits&) = nullptr; ///< what is below it is coloured
    bool isWarning = false;                          ///< whatever stands in it
    Worst worst = nullptr;                           ///< of a largest or worst value

    [[nodiscard]] QString captionText() const; ///< translated
    /// A number as the workbook shows it, with a decimal point; empty for an unknown one.
    [[nodiscard]] QString shown(double value) const;
    /// The cell of a group in the same way.
    [[nodiscard]] QString shownText(const StatisticsRow& row) const;
};

/// The columns behind the key. Those of days have two more.
[[nodiscard]] std::span<const StatisticsColumn> statisticsColumns(bool isOfDays);
/// \param caption of one of them
[[nodiscard]] const StatisticsColumn& statisticsColumn(std::string_view caption);
