#pragma once

#include "quality/QualityDescription.h"

#include <QAbstractTableModel>

#include <vector>

/// The faults of survey results as a table. The first cell of a row carries the point number under
/// `kPointRole` and the line number under `kLineRole`.
class QualityResultModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr int kPointRole = Qt::UserRole + 5;
    static constexpr int kLineRole = Qt::UserRole + 6;
    enum Column
    {
        PointNumber,
        LineNumber,
        Describe,
        Value,
        Limit,
        ColumnCount
    };

    QualityResultModel(std::vector<QualityRow> rows, QObject* parent);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    [[nodiscard]] QString text(const QualityRow& row, int column) const;

    std::vector<QualityRow> m_rows;
};
