#pragma once

#include "quality/statistics/Figures.h"
#include "quality/statistics/Grouping.h"
#include "reports/StatisticsColumns.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

/// The groups of a survey's results with their figures, a row each; above them, in any order, the
/// figures of all results. Numbers look as in the workbook of the statistics. Groups that are in
/// order have a tick.
///
/// Rows may be looked at when the results have changed; members and worst results may not.
class StatisticsTableModel final : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// All results together when there is none.
    using Key = std::optional<statistics::GroupKey>;

    using QAbstractTableModel::QAbstractTableModel;

    /// \param sample null for no rows
    void setGroups(std::shared_ptr<const statistics::SurveySample> sample, Key key);
    [[nodiscard]] Key key() const { return m_key; }

    /// The group of a row; nothing for the row of all results.
    [[nodiscard]] std::optional<std::size_t> groupAt(int row) const;
    /// -1 when there is no group of this value.
    [[nodiscard]] int rowOf(const statistics::KeyValue& value) const;
    [[nodiscard]] const statistics::KeyValue& value(std::size_t group) const;
    /// "Rover 5432".
    [[nodiscard]] QString name(std::size_t group) const;
    /// The results of a group, as places in the sample, ascending.
    [[nodiscard]] std::span<const std::uint32_t> members(std::size_t group) const;
    [[nodiscard]] const statistics::DesignCount& design(std::size_t group) const;
    /// The result that a largest or worst value is of.
    [[nodiscard]] std::optional<std::uint32_t> worstAt(const QModelIndex& cell) const;

    /// \param column -1 for the order of the groups' values
    void sortBy(int column, Qt::SortOrder order);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    struct Group
    {
        statistics::Figures figures;
        std::size_t stakedUntilThen = 0;
        QString name;
        bool isInOrder = false; ///< nothing of its design is left, all results are within limits
        std::vector<QString> texts; ///< of the columns that are no numbers, which name results
    };

    [[nodiscard]] Group groupOf(const statistics::Figures& figures, std::size_t stakedUntilThen,
                                QString name) const;
    void sort();
    [[nodiscard]] const Group& at(int row) const;
    [[nodiscard]] StatisticsRow rowOf(const Group& group) const;
    [[nodiscard]] double number(const Group& group, int column) const;
    [[nodiscard]] QString text(const Group& group, int column) const;
    [[nodiscard]] QString toolTip(const QModelIndex& index) const;
    [[nodiscard]] QVariant tick(const Group& group) const;
    [[nodiscard]] QVariant background(const Group& group, int column) const;
    [[nodiscard]] bool hasWorst(const QModelIndex& index) const;
    [[nodiscard]] const StatisticsColumn& columnAt(int column) const;

    Key m_key;
    std::shared_ptr<const statistics::SurveySample> m_sample;
    statistics::Grouping m_grouping;
    std::vector<std::vector<std::uint32_t>> m_members;
    std::vector<std::uint32_t> m_all; ///< the places of all results
    std::vector<Group> m_groups;
    Group m_totals;
    bool m_hasTicks = false;         ///< a group is in order
    std::vector<std::size_t> m_rows; ///< the group of each row below the totals
    std::span<const StatisticsColumn> m_columns = statisticsColumns(false);
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
};
