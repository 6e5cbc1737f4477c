#include "exchange/CoordCompareModel.h"

#include "basalt_utilities/FixedDecimals.h"
#include "exchange/CoordCompare.h"
#include "lum_sdk/Text.h"

#include <QCoreApplication>

#include <array>

namespace {

constexpr int kLineColumn = 0;
constexpr int kPointColumn = 1;
constexpr int kLatitudeColumn = 2;
constexpr int kLongitudeColumn = 3;
constexpr int kFirstTransformed = 8;

constexpr std::array kCaptions = {
    QT_TRANSLATE_NOOP("CoordCompareModel", "Line Num"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Point Num"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Org Lat"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Org Lon"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Org Alt"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Org North"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Org East"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Org Height"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Trans North"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Trans East"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Trans Height"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "North Diff"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "East Diff"),
    QT_TRANSLATE_NOOP("CoordCompareModel", "Height Diff"),
};

double part(const CoordTriple& triple, int index)
{
    return index == 0 ? triple.first : index == 1 ? triple.second : triple.third;
}

/// The number of a column of heights, plane coordinates or differences.
double number(const CoordCompare& comparison, std::size_t row, int column)
{
    constexpr int kAltitudeColumn = 4;
    constexpr int kFirstStored = 5;
    constexpr int kFirstDifference = 11;
    if (column == kAltitudeColumn)
        return comparison.record(row).altitude;
    if (column < kFirstTransformed)
        return part(comparison.stored(row), column - kFirstStored);
    if (column < kFirstDifference)
        return part(comparison.transformed(row), column - kFirstTransformed);
    return part(comparison.difference(row), column - kFirstDifference);
}

int alignment(int column)
{
    return int((column > kPointColumn ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

} // namespace

CoordCompareModel::CoordCompareModel(const CoordCompare& comparison, int degreeFormat,
                                     const QVariant& faultColor, QObject* parent)
    : QAbstractTableModel(parent), m_comparison(comparison), m_angles(degreeFormat),
      m_faultColor(faultColor)
{
}

int CoordCompareModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_comparison.size());
}

int CoordCompareModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(kCaptions.size());
}

QVariant CoordCompareModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const auto row = static_cast<std::size_t>(index.row());
    const bool isFailed = m_comparison.isFailed(row);
    switch (role) {
    case Qt::DisplayRole:
        return text(row, index.column());
    case Qt::TextAlignmentRole:
        return alignment(index.column());
    case Qt::BackgroundRole:
        return isFailed && index.column() >= kFirstTransformed ? m_faultColor : QVariant();
    case Qt::ToolTipRole:
        return isFailed ? QVariant(m_comparison.message(row).toHtmlEscaped()) : QVariant();
    default:
        return {};
    }
}

QVariant CoordCompareModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount())
        return QAbstractTableModel::headerData(section, orientation, role);
    if (role == Qt::TextAlignmentRole)
        return alignment(section);
    if (role != Qt::DisplayRole)
        return {};
    return QCoreApplication::translate("CoordCompareModel",
                                       kCaptions[static_cast<std::size_t>(section)]);
}

QString CoordCompareModel::text(std::size_t row, int column) const
{
    constexpr int kDecimals = 3;
    const SurveyPoint& record = m_comparison.record(row);
    std::array<char, AngleText::kMostSize> buffer; // NOLINT(cppcoreguidelines-pro-type-member-init)
    const auto upTo = [&](const char* end) {
        return QString::fromUtf8(buffer.data(), static_cast<int>(end - buffer.data()));
    };
    switch (column) {
    case kLineColumn:
        return lum::toQString(record.lineNumber);
    case kPointColumn:
        return lum::toQString(record.pointNumber);
    case kLatitudeColumn:
        return upTo(m_angles.write(buffer.data(), record.latitude));
    case kLongitudeColumn:
        return upTo(m_angles.write(buffer.data(), record.longitude));
    default:
        const double value = number(m_comparison, row, column);
        if (!std::isfinite(value))
            return {};
        return upTo(basalt::writeFixed(buffer.data(), withoutMinusZero(value), kDecimals));
    }
}
