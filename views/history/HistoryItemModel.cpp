#include "views/history/HistoryItemModel.h"

#include "lum_sdk/Text.h"

#include <algorithm>

void HistoryItemModel::setEvents(Events events)
{
    beginResetModel();
    m_events = std::move(events);
    m_ends.clear();
    std::size_t end = 0;
    for (const HistoryReader::Event& event : m_events)
        m_ends.push_back(end += event.items.size());
    endResetModel();
}

std::pair<std::size_t, std::size_t> HistoryItemModel::place(int row) const
{
    const auto wanted = static_cast<std::size_t>(row);
    const auto end = std::ranges::upper_bound(m_ends, wanted);
    const std::size_t start = end == m_ends.begin() ? 0 : *std::prev(end);
    return {static_cast<std::size_t>(end - m_ends.begin()), wanted - start};
}

const HistoryItem& HistoryItemModel::item(int row) const
{
    const auto [event, number] = place(row);
    return m_events[event].items[number];
}

const HistoryAction& HistoryItemModel::action(int row) const
{
    return m_events[place(row).first].action;
}

int HistoryItemModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_ends.empty() ? 0 : static_cast<int>(m_ends.back());
}

int HistoryItemModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QString HistoryItemModel::text(int row, int column) const
{
    const HistoryItem& each = item(row);
    switch (column) {
    case Time:
        return HistoryTexts::timeOf(action(row));
    case Action:
        return action(row).title();
    case Data:
        return HistoryTexts::nameOf(each.data);
    case Line:
        return lum::toQString(each.name.line);
    case Point:
        return lum::toQString(each.name.point);
    case Change:
        return HistoryTexts::changeOf(each);
    case Field:
        return each.field.empty() ? QString() : m_texts.caption(each.data, each.field);
    case Before:
        return each.field.empty() ? wholePoint(row, column).join(QLatin1String("; "))
                                  : m_texts.value(each.data, each.field, each.oldText);
    case After:
        return each.field.empty() ? wholePoint(row, column).join(QLatin1String("; "))
                                  : m_texts.value(each.data, each.field, each.newText);
    default:
        return {};
    }
}

QStringList HistoryItemModel::wholePoint(int row, int column) const
{
    const HistoryTexts::WholePoint point = m_texts.wholePoint(action(row), item(row));
    return column == Before ? point.before : point.after;
}

/// The values of a whole point, a line each.
QString HistoryItemModel::toolTip(int row, int column) const
{
    const QStringList values = wholePoint(row, column);
    if (values.isEmpty())
        return {};
    return QStringLiteral("<p style=\"white-space:pre\">%1</p>")
        .arg(values.join(QLatin1Char('\n')).toHtmlEscaped());
}

QVariant HistoryItemModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    if (role == Qt::DisplayRole)
        return text(index.row(), index.column());
    if (role == Qt::ToolTipRole && (index.column() == Before || index.column() == After))
        return toolTip(index.row(), index.column());
    return {};
}

QVariant HistoryItemModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case Time:
        return tr("Time");
    case Action:
        return tr("Action");
    case Data:
        return tr("What");
    case Line:
        return tr("Line");
    case Point:
        return tr("Point");
    case Change:
        return tr("Change");
    case Field:
        return tr("Field");
    case Before:
        return tr("Before");
    case After:
        return tr("After");
    default:
        return {};
    }
}
