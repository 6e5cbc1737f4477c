#pragma once

#include "exchange/AngleText.h"

#include <QAbstractTableModel>

class CoordCompare;

/// The rows of a comparison as a table: names, position, stored and transformed coordinates,
/// differences. A cell is formatted when it is asked for. Cells that the transformation failed to
/// fill are empty and coloured, and their tool tip says why.
class CoordCompareModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// \param comparison   outlives the model
    /// \param degreeFormat see AngleText
    /// \param faultColor   behind the cells of a failed transformation
    CoordCompareModel(const CoordCompare& comparison, int degreeFormat, const QVariant& faultColor,
                      QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QString text(std::size_t row, int column) const;

    const CoordCompare& m_comparison;
    AngleText m_angles;
    QVariant m_faultColor;
};
