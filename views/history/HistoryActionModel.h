#pragma once

#include "project/history/HistoryReader.h"

#include <QAbstractTableModel>

#include <functional>
#include <optional>

/// The actions of the history as a table, the newest first: those that are not saved yet above the
/// saved ones. The reason of an action that is not saved yet can be edited.
class HistoryActionModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time,
        Action,
        Person,
        Computer,
        State,
        Reason,
        File,
        ColumnCount
    };

    /// An action and, when one point is asked for, what it has done to it.
    struct Row
    {
        HistoryReader::Event event;
        std::optional<std::size_t> unsaved; ///< its place in UnsavedHistory
    };

    using Rows = std::vector<Row>;

    using QAbstractTableModel::QAbstractTableModel;

    void setSaved(Rows rows);
    /// The saved ones stay.
    void setUnsaved(Rows rows);
    /// Called with a row that is not saved, and the reason that the user has typed.
    void setReasonHandler(std::function<void(const Row&, const QString&)> handler);

    [[nodiscard]] const Row& row(int index) const
    {
        return m_rows[static_cast<std::size_t>(index)];
    }
    [[nodiscard]] int unsavedCount() const { return m_unsaved; }
    /// The row of an action, also when it was saved meanwhile; -1 for none.
    [[nodiscard]] int rowOf(const HistoryAction& action) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

private:
    [[nodiscard]] static QString text(const Row& row, int column);

    Rows m_rows;
    int m_unsaved = 0; ///< how many of them, at the beginning, are not saved
    std::function<void(const Row&, const QString&)> m_onReason;
};
