#include "views/tables/ColumnListModel.h"

#include <QGuiApplication>
#include <QPalette>

#include <algorithm>
#include <utility>

ColumnListModel::ColumnListModel(std::vector<Column> columns, QObject* parent)
    : QAbstractListModel(parent), m_columns(std::move(columns))
{
    reset();
}

void ColumnListModel::reset()
{
    beginResetModel();
    m_rows.clear();
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        m_rows.push_back({column, true});
    endResetModel();
}

void ColumnListModel::set(const QStringList& order, const QStringList& checked)
{
    beginResetModel();
    m_rows.clear();
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        m_rows.push_back(
            {column, m_columns[column].isNeeded || checked.contains(m_columns[column].key)});
    // The index of a column that is not in `order` is -1: as an unsigned number it is the highest.
    const auto placeOf = [&](const Row& row) {
        return static_cast<unsigned>(order.indexOf(columnOf(row).key));
    };
    std::stable_sort(m_rows.begin(), m_rows.end(),
                     [&](const Row& a, const Row& b) { return placeOf(a) < placeOf(b); });
    endResetModel();
}

QStringList ColumnListModel::allKeys() const
{
    QStringList all;
    for (const Row& row : m_rows)
        all << columnOf(row).key;
    return all;
}

QStringList ColumnListModel::keys(bool checked) const
{
    QStringList some;
    for (const Row& row : m_rows) {
        if (row.isChecked == checked)
            some << columnOf(row).key;
    }
    return some;
}

int ColumnListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ColumnListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return columnOf(row).caption;
    case Qt::CheckStateRole:
        return row.isChecked ? Qt::Checked : Qt::Unchecked;
    case Qt::ForegroundRole: // its check mark cannot be taken away
        return columnOf(row).isNeeded
                   ? QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text)
                   : QVariant();
    case Qt::UserRole:
        return columnOf(row).key;
    default:
        return {};
    }
}

bool ColumnListModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    Row& row = m_rows[static_cast<std::size_t>(index.row())];
    const bool isChecked = value.toInt() == Qt::Checked;
    if (columnOf(row).isNeeded || (!isChecked && row.isChecked && checkedKeys().size() == 1))
        return false;
    row.isChecked = isChecked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags ColumnListModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled; // between the rows
    const bool isNeeded = columnOf(m_rows[static_cast<std::size_t>(index.row())]).isNeeded;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren | (isNeeded ? Qt::NoItemFlags : Qt::ItemIsUserCheckable);
}

bool ColumnListModel::moveRows(const QModelIndex& sourceParent, int sourceRow, int count,
                               const QModelIndex& destinationParent, int destinationChild)
{
    if (sourceRow < 0 || count < 1 || sourceRow + count > rowCount(sourceParent) ||
        destinationChild < 0 || destinationChild > rowCount(destinationParent) ||
        !beginMoveRows(sourceParent, sourceRow, sourceRow + count - 1, destinationParent,
                       destinationChild))
        return false;
    const auto first = m_rows.begin() + sourceRow;
    const auto target = m_rows.begin() + destinationChild;
    if (target < first)
        std::rotate(target, first, first + count);
    else
        std::rotate(first, first + count, target);
    endMoveRows();
    return true;
}
