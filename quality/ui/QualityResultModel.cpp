#include "quality/ui/QualityResultModel.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

namespace {

constexpr int kDecimals = 3;

QString number(double value)
{
    return QString::fromStdString(basalt::formatFixed(value, kDecimals));
}

} // namespace

QualityResultModel::QualityResultModel(std::vector<QualityRow> rows, QObject* parent)
    : QAbstractTableModel(parent), m_rows(std::move(rows))
{
}

int QualityResultModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int QualityResultModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant QualityResultModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const QualityRow& row = m_rows[static_cast<std::size_t>(index.row())];
    if (role == Qt::DisplayRole)
        return text(row, index.column());
    if (role == Qt::TextAlignmentRole)
        return int(Qt::AlignCenter);
    if (index.column() == PointNumber && role == kPointRole)
        return lum::toQString(row.pointNumber);
    if (index.column() == PointNumber && role == kLineRole)
        return lum::toQString(row.lineNumber);
    return {};
}

QVariant QualityResultModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case PointNumber:
        return tr("Point Num");
    case LineNumber:
        return tr("Line Num");
    case Describe:
        return tr("Describe");
    case Value:
        return tr("Value");
    case Limit:
        return tr("Limit");
    default:
        return {};
    }
}

QString QualityResultModel::text(const QualityRow& row, int column) const
{
    switch (column) {
    case PointNumber:
        return lum::toQString(writtenPointNumber(row.pointNumber));
    case LineNumber:
        return lum::toQString(row.lineNumber);
    case Describe:
        return row.text();
    case Value:
        return number(row.value);
    default:
        return number(row.limit);
    }
}
