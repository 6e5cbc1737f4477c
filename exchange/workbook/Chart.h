#pragma once

#include "exchange/workbook/RowCells.h"

/// A chart of cells of the workbook; it shows what they hold when the workbook is opened.
struct Chart
{
    enum class Kind
    {
        Columns,        ///< upright, beside each other
        StackedColumns, ///< upright, on each other: their sum is seen, too
        Bars,           ///< lying, the first category on top
        Lines
    };
    struct Series
    {
        QString name; ///< in the legend, which one series alone does not have
        CellRange categories;
        CellRange values;
    };

    Kind kind = Kind::Columns;
    QString title;
    std::vector<Series> series;
    QString categoryAxis{}; ///< what the categories are; may be empty
    QString valueAxis{};    ///< with its unit; may be empty
    bool hasDays = false;   ///< whether the categories are days, which stand in their places
};
