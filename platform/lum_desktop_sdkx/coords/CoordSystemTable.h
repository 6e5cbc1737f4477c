#pragma once

#include "lum_sdk/coords/CoordSystemCatalog.h"

#include <QAbstractTableModel>

/// Systems that a search has found: code, name and area.
class CoordSystemTable : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Code,
        Name,
        Area,
        Columns
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// The entries belong to the catalogue, which outlives them here.
    void setEntries(std::vector<const CoordSystemEntry*> entries);
    /// Null for an invalid index.
    [[nodiscard]] const CoordSystemEntry* entry(const QModelIndex& index) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<const CoordSystemEntry*> m_entries;
};
