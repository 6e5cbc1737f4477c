#pragma once

#include "views/history/HistoryTexts.h"

#include <QAbstractTableModel>

/// What actions have changed, a row for each point or value. A text is made, and a packed point
/// unpacked, when its cell is looked at.
class HistoryItemModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column
    {
        Time, ///< of the action
        Action,
        Data,
        Line,
        Point,
        Change,
        Field,
        Before,
        After,
        ColumnCount
    };
    using Events = std::vector<HistoryReader::Event>;

    using QAbstractTableModel::QAbstractTableModel;

    void setEvents(Events events);

    [[nodiscard]] const HistoryItem& item(int row) const;
    [[nodiscard]] const HistoryAction& action(int row) const;
    [[nodiscard]] std::size_t eventAt(int row) const { return place(row).first; }
    [[nodiscard]] const std::vector<HistoryItem>& items(std::size_t event) const
    {
        return m_events[event].items;
    }
    [[nodiscard]] int firstRowOf(std::size_t event) const
    {
        return event == 0 ? 0 : static_cast<int>(m_ends[event - 1]);
    }
    /// Whether two rows are about the same action.
    [[nodiscard]] bool areTogether(int first, int second) const
    {
        return eventAt(first) == eventAt(second);
    }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    /// Event and item of a row.
    [[nodiscard]] std::pair<std::size_t, std::size_t> place(int row) const;
    [[nodiscard]] QString text(int row, int column) const;
    [[nodiscard]] QStringList wholePoint(int row, int column) const;
    [[nodiscard]] QString toolTip(int row, int column) const;

    Events m_events;
    std::vector<std::size_t> m_ends; ///< the row behind each event
    HistoryTexts m_texts;
};
