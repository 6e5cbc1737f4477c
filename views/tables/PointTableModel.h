#pragma once

#include "model/PointName.h"
#include "views/tables/ShownRowsModel.h"

#include <QStringList>

#include <optional>
#include <vector>

/// The points of one line, or of all lines, as a table over the project's records.
///
/// A row is a reference to a record, never a copy, and a cell is formatted when it is asked for.
/// When the project's points have changed and nobody has called `refresh` yet, the rows are there,
/// and empty. Numbers are formatted without the locale.
class PointTableModel : public ShownRowsModel
{
    Q_OBJECT

public:
    /// Roles of a cell besides those of Qt. The first column holds the numbers that name the point.
    static constexpr int kPointNumberRole = Qt::UserRole + 5;
    static constexpr int kLineNumberRole = Qt::UserRole + 6;

    using ShownRowsModel::ShownRowsModel;

    // What is shown. Each keeps filter and order.

    /// A line that the project does not have has no rows.
    virtual void showLine(const QString& lineNumber) = 0;
    virtual void showAllLines() = 0;
    virtual void showNothing() = 0;
    /// Reads anew what is shown. Persistent indexes keep their points; those of points that are
    /// gone become invalid.
    virtual void refresh() = 0;
    [[nodiscard]] virtual bool showsAllLines() const = 0;
    /// The line shown; empty for all lines and for nothing.
    [[nodiscard]] virtual QString line() const = 0;

    // Rows and points.

    /// -1 when no row shows the point. Takes well under a millisecond.
    [[nodiscard]] virtual int rowOf(const PointName& point) const = 0;
    /// Whether the point is among those shown before the filter.
    [[nodiscard]] virtual bool holds(const PointName& point) const = 0;
    /// Empty names when the points have changed since the last `refresh`.
    [[nodiscard]] virtual PointName pointAt(int row) const = 0;
    /// The points shown before the filter.
    [[nodiscard]] virtual int unfilteredCount() const = 0;

    // Order: numbers as numbers, names by their bytes, other texts as the language sorts them.
    // Equal rows keep the line's own order.

    /// \param column -1 for the line's own order
    virtual void sortBy(int column, Qt::SortOrder order) = 0;
    [[nodiscard]] virtual int sortColumn() const = 0;
    [[nodiscard]] virtual Qt::SortOrder sortOrder() const = 0;

    // Filter: a row is shown when it passes the expressions of all columns, see RowFilter.h.

    /// An empty expression shows all. One that cannot be read (`filterFault`) counts as empty.
    virtual void setFilter(int column, const QString& expression) = 0;
    [[nodiscard]] virtual QString filter(int column) const = 0;
    /// Why the expression of a column cannot be read, translated; empty when it can.
    [[nodiscard]] virtual QString filterFault(int column) const = 0;
    [[nodiscard]] virtual bool isFiltered() const = 0;
    /// Shows only these points, those of them that there are now and later.
    /// \param points ascending by line and number; nothing for all points
    virtual void setOnly(std::optional<std::vector<PointName>> points) = 0;
    /// `setOnly` with them.
    virtual void clearFilters() = 0;

    /// The key of a column, for settings: the same in every language.
    [[nodiscard]] virtual QString columnKey(int column) const = 0;
};
