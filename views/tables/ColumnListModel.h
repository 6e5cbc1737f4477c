#pragma once

#include <QAbstractListModel>
#include <QStringList>

#include <vector>

/// Columns with a check mark each, in the order in which they will stand: for a list in which the
/// user checks columns and moves them. The role `Qt::UserRole` holds a column's key.
///
/// Some columns are needed, and stay checked; so does the last one that is.
class ColumnListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    struct Column
    {
        QString key;
        QString caption;
        bool isNeeded = false;
    };

    /// All columns, checked, in their first order.
    explicit ColumnListModel(std::vector<Column> columns, QObject* parent = nullptr);

    /// Columns that `order` does not name stand behind, in their first order.
    void set(const QStringList& order, const QStringList& checked);
    /// Checks all columns, in their first order.
    void reset();

    [[nodiscard]] QStringList checkedKeys() const { return keys(true); }
    [[nodiscard]] QStringList uncheckedKeys() const { return keys(false); }
    [[nodiscard]] QStringList allKeys() const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool moveRows(const QModelIndex& sourceParent, int sourceRow, int count,
                  const QModelIndex& destinationParent, int destinationChild) override;

private:
    struct Row
    {
        std::size_t column; ///< in `m_columns`
        bool isChecked;
    };

    [[nodiscard]] QStringList keys(bool checked) const;
    [[nodiscard]] const Column& columnOf(const Row& row) const { return m_columns[row.column]; }

    std::vector<Column> m_columns;
    std::vector<Row> m_rows;
};
