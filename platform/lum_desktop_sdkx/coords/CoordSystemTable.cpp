#include "lum_desktop_sdkx/coords/CoordSystemTable.h"

#include "lum_sdk/Text.h"

#include <utility>

void CoordSystemTable::setEntries(std::vector<const CoordSystemEntry*> entries)
{
    beginResetModel();
    m_entries = std::move(entries);
    endResetModel();
}

const CoordSystemEntry* CoordSystemTable::entry(const QModelIndex& index) const
{
    return index.isValid() ? m_entries[static_cast<std::size_t>(index.row())] : nullptr;
}

int CoordSystemTable::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

int CoordSystemTable::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : Columns;
}

QVariant CoordSystemTable::data(const QModelIndex& index, int role) const
{
    const CoordSystemEntry* const at = entry(index);
    const bool isText = role == Qt::DisplayRole || role == Qt::ToolTipRole;
    if (at == nullptr || !isText)
        return {};
    switch (index.column()) {
    case Code:
        return lum::toQString(at->code);
    case Name:
        return lum::toQString(at->name);
    default:
        return lum::toQString(at->area);
    }
}
