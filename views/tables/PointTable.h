#pragma once

#include "basalt_utilities/FixedDecimals.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_sdk/Text.h"
#include "model/PointLines.h"
#include "views/tables/PointRows.h"
#include "views/tables/PointTableModel.h"
#include "views/tables/RowFilter.h"
#include "views/tables/SortKeys.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

/// How a column of a point table is sorted, filtered and aligned.
enum class ColumnKind
{
    Number, ///< a double, or a count
    Time,
    Name, ///< of lines and points: ordered by its bytes
    Text  ///< ordered as the language does
};

/// A column of a point table.
template <class Point>
struct TableColumn
{
    using Field = std::variant<std::string Point::*, double Point::*, std::int32_t Point::*,
                               std::int64_t Point::*>;

    QString key;
    QString caption;
    ColumnKind kind = ColumnKind::Text;
    Field field;
    int decimals = -1;             ///< shown of a number; -1 for all
    QStringList longestTexts = {}; ///< that its cells may have, where these are known
};

/// A table over the points of a container: all but the texts and looks of its cells.
template <class Point>
class PointTable : public PointTableModel
{
public:
    using Column = TableColumn<Point>;
    using Points = PointLines<Point>;

    explicit PointTable(std::vector<Column> columns)
        : m_columns(std::move(columns)), m_filters(m_columns.size())
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_shown.count();
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void sort(int column, Qt::SortOrder order) override { sortBy(column, order); }

    void showLine(const QString& lineNumber) override { show(Choice::Line, lineNumber); }
    void showAllLines() override { show(Choice::AllLines, {}); }
    void showNothing() override { show(Choice::Nothing, {}); }
    void refresh() override { relayout(Renewal::Values); }
    [[nodiscard]] bool showsAllLines() const override { return m_choice == Choice::AllLines; }
    [[nodiscard]] QString line() const override { return m_line; }

    [[nodiscard]] int rowOf(const PointName& point) const override
    {
        const auto place = placeOf(point);
        return place ? m_shown.rowOf(*place) : -1;
    }
    [[nodiscard]] bool holds(const PointName& point) const override
    {
        return placeOf(point).has_value();
    }
    [[nodiscard]] PointName pointAt(int row) const override
    {
        const Point* const point = recordAt(row);
        return point == nullptr ? PointName() : PointName{point->lineNumber, point->pointNumber};
    }
    [[nodiscard]] int unfilteredCount() const override { return static_cast<int>(m_rows.size()); }

    void sortBy(int column, Qt::SortOrder order) override
    {
        m_sortColumn = isColumn(column) ? column : -1;
        m_sortOrder = order;
        relayout();
    }
    [[nodiscard]] int sortColumn() const override { return m_sortColumn; }
    [[nodiscard]] Qt::SortOrder sortOrder() const override { return m_sortOrder; }

    void setFilter(int column, const QString& expression) override;
    [[nodiscard]] QString filter(int column) const override
    {
        return isColumn(column) ? filterAt(column).expression : QString();
    }
    [[nodiscard]] QString filterFault(int column) const override
    {
        return isColumn(column) ? filterAt(column).filter.fault() : QString();
    }
    [[nodiscard]] bool isFiltered() const override
    {
        return m_only || std::any_of(m_filters.begin(), m_filters.end(),
                                     [](const Filter& filter) { return !filter.filter.isEmpty(); });
    }
    void setOnly(std::optional<std::vector<PointName>> points) override
    {
        m_only = std::move(points);
        relayout();
    }
    void clearFilters() override
    {
        m_only.reset();
        m_filters.assign(m_columns.size(), {});
        relayout();
    }

    [[nodiscard]] QString columnKey(int column) const override
    {
        return isColumn(column) ? columnAt(column).key : QString();
    }

protected:
    /// Null while there is no manager.
    [[nodiscard]] virtual const Points* points() const = 0;
    /// What may be others now.
    enum class Renewal
    {
        Points, ///< which points there are, and the settings that texts depend on
        Values  ///< and values of points
    };
    virtual void renewTexts(Renewal renewal) = 0;
    /// The text of a cell, valid until the next call.
    [[nodiscard]] virtual std::string_view text(const Point& point, int column) const = 0;
    /// Colours, mark and tool tip of a cell.
    [[nodiscard]] virtual QVariant look(const Point& point, int column, int role) const = 0;

private:
    enum class Choice
    {
        Nothing,
        Line,
        AllLines
    };
    struct Filter
    {
        QString expression;
        RowFilter filter;
    };

    [[nodiscard]] bool isColumn(int column) const { return column >= 0 && column < columnCount(); }
    [[nodiscard]] const Column& columnAt(int column) const
    {
        return m_columns[static_cast<std::size_t>(column)];
    }
    [[nodiscard]] const Filter& filterAt(int column) const
    {
        return m_filters[static_cast<std::size_t>(column)];
    }
    [[nodiscard]] bool isFresh() const { return m_rows.areOf(points()); }
    /// Null for a row that is not there, and for all when the points have changed.
    [[nodiscard]] const Point* recordAt(int row) const
    {
        const bool isThere = row >= 0 && row < m_shown.count() && isFresh();
        return isThere ? &m_rows[m_shown.pointAt(row)] : nullptr;
    }
    [[nodiscard]] std::optional<std::uint32_t> placeOf(const PointName& point) const
    {
        return isFresh() ? m_rows.find(point) : std::nullopt;
    }
    [[nodiscard]] QVariant alignment(int column) const
    {
        const bool isNumber = columnAt(column).kind == ColumnKind::Number;
        return int((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    }

    void show(Choice choice, const QString& lineNumber);
    void relayout(Renewal renewal = Renewal::Points);
    void readPoints();
    void arrange(Renewal renewal = Renewal::Points);
    void narrowToOnly(std::vector<std::uint32_t>& places) const;
    void narrow(std::vector<std::uint32_t>& places, int column) const;
    void sort(std::vector<std::uint32_t>& places) const;

    const std::vector<Column> m_columns;
    std::vector<Filter> m_filters; ///< of each column
    std::optional<std::vector<PointName>> m_only;
    Choice m_choice = Choice::Nothing;
    QString m_line;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    PointRows<Point> m_rows; ///< before the filter
};

template <class Point>
QVariant PointTable<Point>::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || !isColumn(index.column()))
        return {};
    if (role == Qt::TextAlignmentRole)
        return alignment(index.column());
    const Point* const point = recordAt(index.row());
    if (point == nullptr)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return lum::toQString(text(*point, index.column()));
    case Qt::ForegroundRole:
    case Qt::BackgroundRole:
    case Qt::DecorationRole:
    case Qt::ToolTipRole:
        return look(*point, index.column(), role);
    case Qt::AccessibleDescriptionRole: // a colour alone tells too few
        return look(*point, index.column(), Qt::ToolTipRole);
    case kPointNumberRole:
        return index.column() == 0 ? lum::toQString(point->pointNumber) : QVariant();
    case kLineNumberRole:
        return index.column() == 0 ? lum::toQString(point->lineNumber) : QVariant();
    default:
        return {};
    }
}

template <class Point>
QVariant PointTable<Point>::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && isColumn(section)) {
        if (role == Qt::DisplayRole)
            return columnAt(section).caption;
        if (role == CustomTableWidget::kLongestTextsRole)
            return columnAt(section).longestTexts;
        if (role == Qt::TextAlignmentRole)
            return alignment(section);
    }
    return PointTableModel::headerData(section, orientation, role);
}

template <class Point>
void PointTable<Point>::setFilter(int column, const QString& expression)
{
    if (!isColumn(column) || filterAt(column).expression == expression)
        return;
    const Column& filtered = columnAt(column);
    FilteredValue value = FilteredValue::Text;
    if (filtered.kind == ColumnKind::Number)
        value = FilteredValue::Number;
    else if (filtered.kind == ColumnKind::Time)
        value = FilteredValue::Time;
    const double tolerance = filtered.decimals < 0 ? 0 : 0.5 * std::pow(10, -filtered.decimals);
    m_filters[static_cast<std::size_t>(column)] = {expression,
                                                   RowFilter(expression, value, tolerance)};
    relayout();
}

template <class Point>
void PointTable<Point>::show(Choice choice, const QString& lineNumber)
{
    if (m_choice == choice && m_line == lineNumber)
        return refresh();
    beginResetModel();
    m_choice = choice;
    m_line = lineNumber;
    readPoints();
    arrange();
    endResetModel();
}

/// Reads the points when they have changed, and gives filter and order their due.
template <class Point>
void PointTable<Point>::relayout(Renewal renewal)
{
    changeLayout([&](Places& places) {
        if (!isFresh()) {
            std::vector<typename PointRows<Point>::Key> keys;
            keys.reserve(places.size());
            for (const std::uint32_t place : places)
                keys.push_back(m_rows.keyAt(place));
            readPoints();
            const auto found = m_rows.placesOf(keys);
            std::transform(keys.begin(), keys.end(), places.begin(), [&](const auto key) {
                const auto at = found.find(key);
                return at == found.end() ? kGone : at->second;
            });
        }
        arrange(renewal);
    });
}

template <class Point>
void PointTable<Point>::readPoints()
{
    const Points* const all = points();
    if (all == nullptr || m_choice == Choice::Nothing)
        m_rows.clear();
    else if (m_choice == Choice::AllLines)
        m_rows.readAll(*all);
    else
        m_rows.readLine(*all, m_line.toStdString());
}

template <class Point>
void PointTable<Point>::arrange(Renewal renewal)
{
    renewTexts(renewal);
    std::vector<std::uint32_t> places(m_rows.size());
    std::iota(places.begin(), places.end(), 0U);
    if (m_only)
        narrowToOnly(places);
    for (int column = 0; column < columnCount(); ++column) {
        if (!filterAt(column).filter.isEmpty())
            narrow(places, column);
    }
    if (m_sortColumn >= 0)
        sort(places);
    m_shown.set(std::move(places), m_sortColumn < 0, m_rows.size());
}

/// Keeps the points of `m_only`. Both are in the order of their names.
template <class Point>
void PointTable<Point>::narrowToOnly(std::vector<std::uint32_t>& places) const
{
    auto next = m_only->begin();
    std::erase_if(places, [&](std::uint32_t place) {
        const Point& point = m_rows[place];
        const auto name = std::tie(point.lineNumber, point.pointNumber);
        while (next != m_only->end() && std::tie(next->line, next->point) < name)
            ++next;
        return next == m_only->end() || std::tie(next->line, next->point) != name;
    });
}

/// Keeps the rows that pass the filter of a column.
template <class Point>
void PointTable<Point>::narrow(std::vector<std::uint32_t>& places, int column) const
{
    const RowFilter& filter = filterAt(column).filter;
    const auto keep = [&](const auto& passes) {
        std::size_t kept = 0;
        for (const std::uint32_t place : places) {
            places[kept] = place; // without a branch, which would mostly be foreseen wrongly
            kept += passes(m_rows[place]) ? 1U : 0U;
        }
        places.resize(kept);
    };
    const auto keepByNumber = [&](const auto& numberOf) {
        keep([&](const Point& point) {
            return filter.passes([&] { return numberOf(point); },
                                 [&] { return text(point, column); });
        });
    };
    const auto keepByField = [&]<class Value>(Value Point::*field) {
        if constexpr (std::is_arithmetic_v<Value>) {
            const auto number = [field](const Point& point) { return double(point.*field); };
            if (const auto range = filter.range()) {
                keep([&, low = range->first, high = range->second](const Point& point) {
                    return (number(point) >= low) & (number(point) <= high);
                });
            } else {
                keepByNumber(number);
            }
        }
    };
    if (columnAt(column).kind == ColumnKind::Number)
        return std::visit(keepByField, columnAt(column).field);
    keepByNumber([&](const Point& point) {
        constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
        return basalt::wholeDecimal(text(point, column)).value_or(kNone);
    });
}

template <class Point>
void PointTable<Point>::sort(std::vector<std::uint32_t>& places) const
{
    const Column& column = columnAt(m_sortColumn);
    const bool isDescending = m_sortOrder == Qt::DescendingOrder;
    std::vector<SortItem> items;
    items.reserve(places.size());
    for (const std::uint32_t place : places)
        items.push_back({0, place});
    if (column.kind == ColumnKind::Name) {
        const auto name = std::get<std::string Point::*>(column.field);
        sortByNames(items, isDescending,
                    [&](std::uint32_t row) { return std::string_view(m_rows[row].*name); });
    } else if (column.kind == ColumnKind::Text) {
        sortByTexts(items, isDescending,
                    [&](std::uint32_t row) { return text(m_rows[row], m_sortColumn); });
    } else {
        std::visit(
            [&]<class Value>(Value Point::*field) {
                using Key = std::conditional_t<std::is_integral_v<Value>, std::int64_t, double>;
                if constexpr (std::is_arithmetic_v<Value>) {
                    for (SortItem& item : items)
                        item.key = sortKey(static_cast<Key>(m_rows[item.row].*field));
                }
            },
            column.field);
        sortByKeys(items, isDescending);
    }
    std::transform(items.begin(), items.end(), places.begin(),
                   [](const SortItem& item) { return item.row; });
}
