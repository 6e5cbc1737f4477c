#pragma once

#include "exchange/ImportSummary.h"

#include <QAbstractTableModel>

/// The findings of an import, a row for each place that its summary has kept: kind, line of the
/// file or result of the database, line and point as the project has them, sentence. The worst
/// kinds stand first.
class ImportFindingsModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    // Data roles of a row's first cell.
    static constexpr int kPointNumber = 261;
    static constexpr int kLineNumber = 262;
    static constexpr int kFileLine = 263;

    explicit ImportFindingsModel(const ImportSummary& summary, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Row
    {
        QString kind;
        ImportSummary::Findings::Place place;
    };

    std::vector<Row> m_rows;
    bool m_isDatabase;
};
