#pragma once

#include "reports/daily/DailyTables.h"

#include <QFont>
#include <QRectF>

#include <vector>

class QPainter;

/// How a table stands on a page: the widths of its columns and the size of its letters, both
/// chosen so that no number is cut. Names may be shortened. Pixels of 1/96 inch.
class TableLook
{
public:
    enum class RowKind
    {
        Heading,
        Values,
        Sum
    };

    /// The cells of a row; the first one begins at the origin.
    struct Row
    {
        struct Cell
        {
            QRectF place;
            QStringList lines;
            bool isNumber = false;
        };
        std::vector<Cell> cells;
        QFont font;
        double height = 0;
        bool isShaded = false;
    };

    /// \param width of the table; it must outlive its look
    TableLook(const DailyTable& table, double width);

    [[nodiscard]] Row row(const QStringList& texts, RowKind kind) const;
    [[nodiscard]] Row heading() const;

private:
    const DailyTable& m_table;
    double m_size = 0; ///< of letters
    std::vector<double> m_widths;
};

/// \param corner the upper left one
void paintRow(QPainter& painter, const TableLook::Row& row, const QPointF& corner);
