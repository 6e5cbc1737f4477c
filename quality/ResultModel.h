#pragma once

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <QAbstractTableModel>
#include <QCoreApplication>

#include <span>
#include <utility>
#include <vector>

/// Roles of a result model besides those of Qt. The first cell of a row holds the numbers that name
/// its point in the project.
namespace result_role {
inline constexpr int kPointNumber = Qt::UserRole + 5; ///< of a cell
inline constexpr int kLineNumber = Qt::UserRole + 6;  ///< of a cell
inline constexpr int kEnglish = Qt::UserRole;         ///< of a header: its caption in English
inline constexpr int kIsFault = Qt::UserRole + 1;     ///< of a cell: its value is out of range
} // namespace result_role

/// The texts of cells.
namespace result_text {

/// Without the counter of a check point.
template <class Row>
QString pointNumber(const Row& row)
{
    return lum::toQString(writtenPointNumber(row.pointNumber));
}

template <class Row>
QString lineNumber(const Row& row)
{
    return lum::toQString(row.lineNumber);
}

/// Of a receiver or a source.
inline QString kind(bool isReceiver)
{
    return isReceiver ? QStringLiteral("R") : QStringLiteral("S");
}

/// With three decimals, as every number of a result.
inline QString number(double value)
{
    return QString::fromStdString(basalt::formatFixed(value, 3));
}

} // namespace result_text

/// A column of a check's result.
template <class Row>
struct ResultColumn
{
    const char* caption = nullptr; ///< in English; its translation has the context "ResultModel"
    QString (*text)(const Row& row) = nullptr;
    QString (*toolTip)(const Row& row) = nullptr;
    bool (*isFault)(const Row& row) = nullptr;
};

/// The result of a check as a table of centred texts. A cell is formatted when it is asked for.
/// \tparam Row what the check found, with `pointNumber` and `lineNumber`
template <class Row>
class ResultModel final : public QAbstractTableModel
{
public:
    /// \param columns outlive the model
    ResultModel(std::span<const ResultColumn<Row>> columns, std::vector<Row> rows)
        : m_columns(columns), m_rows(std::move(rows))
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
    }

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (!index.isValid())
            return {};
        const Row& row = m_rows[static_cast<std::size_t>(index.row())];
        const auto& column = m_columns[static_cast<std::size_t>(index.column())];
        if (role == Qt::DisplayRole)
            return column.text(row);
        if (role == Qt::ToolTipRole && column.toolTip != nullptr)
            return column.toolTip(row);
        if (role == result_role::kIsFault && column.isFault != nullptr)
            return column.isFault(row);
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignCenter);
        if (index.column() == 0 && role == result_role::kPointNumber)
            return lum::toQString(row.pointNumber);
        if (index.column() == 0 && role == result_role::kLineNumber)
            return lum::toQString(row.lineNumber);
        return {};
    }

    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override
    {
        if (role == Qt::TextAlignmentRole && orientation == Qt::Horizontal)
            return int(Qt::AlignCenter);
        const bool isCaption = role == Qt::DisplayRole || role == result_role::kEnglish;
        if (orientation != Qt::Horizontal || section < 0 || section >= columnCount() || !isCaption)
            return QAbstractTableModel::headerData(section, orientation, role);
        const char* const caption = m_columns[static_cast<std::size_t>(section)].caption;
        return role == Qt::DisplayRole ? QCoreApplication::translate("ResultModel", caption)
                                       : QString::fromLatin1(caption);
    }

private:
    std::span<const ResultColumn<Row>> m_columns;
    std::vector<Row> m_rows;
};
