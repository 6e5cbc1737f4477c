#include "views/history/HistoryActionModel.h"

#include "views/history/HistoryTexts.h"

#include <QFont>

#include <algorithm>
#include <iterator>

void HistoryActionModel::setSaved(Rows rows)
{
    beginResetModel();
    m_rows.erase(m_rows.begin() + m_unsaved, m_rows.end());
    std::ranges::move(rows, std::back_inserter(m_rows));
    endResetModel();
}

void HistoryActionModel::setUnsaved(Rows rows)
{
    beginResetModel();
    m_rows.erase(m_rows.begin(), m_rows.begin() + m_unsaved);
    m_unsaved = static_cast<int>(rows.size());
    m_rows.insert(m_rows.begin(), std::make_move_iterator(rows.begin()),
                  std::make_move_iterator(rows.end()));
    endResetModel();
}

void HistoryActionModel::setReasonHandler(std::function<void(const Row&, const QString&)> handler)
{
    m_onReason = std::move(handler);
}

int HistoryActionModel::rowOf(const HistoryAction& action) const
{
    const auto found = std::ranges::find_if(m_rows, [&](const Row& row) {
        const HistoryAction& each = row.event.action;
        return each.time == action.time && each.kind == action.kind && each.state == action.state;
    });
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

int HistoryActionModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int HistoryActionModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString HistoryActionModel::text(const Row& row, int column)
{
    const HistoryAction& action = row.event.action;
    switch (column) {
    case Time:
        return HistoryTexts::timeOf(action);
    case Action:
        return action.title();
    case Person:
        return action.person;
    case Computer:
        return action.machine;
    case State:
        return HistoryTexts::stateOf(action, !row.unsaved);
    case Reason:
        return action.reason;
    case File:
        return action.file;
    default:
        return {};
    }
}

QVariant HistoryActionModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& each = row(index.row());
    const bool isEditable = flags(index).testFlag(Qt::ItemIsEditable);
    if (role == Qt::DisplayRole || role == Qt::EditRole)
        return text(each, index.column());
    if (role == Qt::ToolTipRole && isEditable)
        return tr("A double click edits the reason, until the project is saved.");
    if (role == Qt::ToolTipRole && index.column() == File && !each.event.action.file.isEmpty())
        return each.event.action.file;
    if (role == Qt::FontRole && each.unsaved) {
        QFont font;
        font.setItalic(true);
        return font;
    }
    return {};
}

QVariant HistoryActionModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Time:
        return tr("Time");
    case Action:
        return tr("Action");
    case Person:
        return tr("Person");
    case Computer:
        return tr("Computer");
    case State:
        return tr("State");
    case Reason:
        return tr("Reason");
    case File:
        return tr("File");
    default:
        return {};
    }
}

Qt::ItemFlags HistoryActionModel::flags(const QModelIndex& index) const
{
    Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    if (index.isValid() && index.column() == Reason && row(index.row()).unsaved)
        flags |= Qt::ItemIsEditable;
    return flags;
}

bool HistoryActionModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::EditRole || !flags(index).testFlag(Qt::ItemIsEditable))
        return false;
    Row& each = m_rows[static_cast<std::size_t>(index.row())];
    each.event.action.reason = value.toString().simplified();
    if (m_onReason)
        m_onReason(each, each.event.action.reason);
    Q_EMIT dataChanged(index, index);
    return true;
}
