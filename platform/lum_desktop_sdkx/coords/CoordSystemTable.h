#pragma once

#include "lum_sdk/coords/CoordSystemCatalog.h"

#include <QAbstractTableModel>

/// The systems that a search has found, with code, name and area.
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

    /// \param entries belong to the catalogue, which must outlive them here
    void setEntries(std::vector<const CoordSystemEntry*> entries);
    /// The entry of a row; null for an invalid index.
    [[nodiscard]] const CoordSystemEntry* entry(const QModelIndex& index) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    std::vector<const CoordSystemEntry*> m_entries;
};
