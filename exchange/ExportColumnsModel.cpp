#include "exchange/ExportColumnsModel.h"

#include "basalt_utilities/Dictionary.h"
#include "exchange/ExportColumns.h"
#include "model/SurveyColumns.h"

#include <algorithm>

namespace {

QString keyOf(std::size_t column)
{
    return QString::fromLatin1(surveyColumns()[column].key);
}

bool isNeeded(std::size_t column)
{
    const SurveyColumn::Member& member = surveyColumns()[column].member;
    return member == SurveyColumn::Member(&SurveyPoint::lineNumber) ||
           member == SurveyColumn::Member(&SurveyPoint::pointNumber);
}

} // namespace

ExportColumnsModel::ExportColumnsModel(QObject* parent)
    : QAbstractListModel(parent), m_captions(surveyCaptions())
{
    reset();
}

void ExportColumnsModel::load(const IDictionary& settings)
{
    setChosen(exportColumns(settings));
}

void ExportColumnsModel::store(IDictionary& settings) const
{
    setExportColumns(settings, chosenKeys());
}

void ExportColumnsModel::reset()
{
    setChosen(exportColumns(basalt::Dictionary()));
}

void ExportColumnsModel::setChosen(const QStringList& keys)
{
    beginResetModel();
    m_rows.clear();
    for (std::size_t column = 0; column < surveyColumns().size(); ++column)
        m_rows.push_back({column, isNeeded(column) || keys.contains(keyOf(column))});
    // The index of a column that is not chosen is -1: as an unsigned number it is the highest.
    std::stable_sort(m_rows.begin(), m_rows.end(), [&](const Row& a, const Row& b) {
        return static_cast<unsigned>(keys.indexOf(keyOf(a.column))) <
               static_cast<unsigned>(keys.indexOf(keyOf(b.column)));
    });
    endResetModel();
}

QStringList ExportColumnsModel::chosenKeys() const
{
    QStringList keys;
    for (const Row& row : m_rows) {
        if (row.isChosen)
            keys << keyOf(row.column);
    }
    return keys;
}

int ExportColumnsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ExportColumnsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case Qt::DisplayRole:
        return m_captions[static_cast<int>(row.column)];
    case Qt::CheckStateRole:
        return row.isChosen ? Qt::Checked : Qt::Unchecked;
    case Qt::UserRole:
        return keyOf(row.column);
    default:
        return {};
    }
}

bool ExportColumnsModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (role != Qt::CheckStateRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return false;
    Row& row = m_rows[static_cast<std::size_t>(index.row())];
    if (isNeeded(row.column))
        return false;
    row.isChosen = value.toInt() == Qt::Checked;
    Q_EMIT dataChanged(index, index, {Qt::CheckStateRole});
    return true;
}

Qt::ItemFlags ExportColumnsModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::NoItemFlags;
    const bool isFixed = isNeeded(m_rows[static_cast<std::size_t>(index.row())].column);
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren |
           (isFixed ? Qt::NoItemFlags : Qt::ItemIsUserCheckable);
}

bool ExportColumnsModel::moveRows(const QModelIndex& sourceParent, int sourceRow, int count,
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
