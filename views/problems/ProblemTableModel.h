#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "quality/problems/ProblemColumns.h"
#include "quality/problems/ProblemList.h"
#include "views/tables/RowFilter.h"
#include "views/tables/ShownRowsModel.h"

#include <QIcon>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// How many problems of a kind there are.
struct ProblemKindCount
{
    const ProblemKind* kind = nullptr;
    int open = 0;
    int accepted = 0;
};

/// The problems of a project as a table: the open or the accepted ones of some kinds, which pass a
/// search and the filters of the columns (`ProblemField`).
///
/// Their own order is that of their severity, the worst first, then of their kinds by rank, then
/// that in which they were found. A row is a reference to its problem; a cell is formatted when it
/// is asked for.
class ProblemTableModel final : public ShownRowsModel
{
    Q_OBJECT

public:
    /// Which problems are there before search and filters.
    struct Choice
    {
        bool isAccepted = false;               ///< the accepted ones, else the open ones
        std::vector<const ProblemKind*> kinds; ///< empty for all

        friend bool operator==(const Choice&, const Choice&) = default;
    };

    explicit ProblemTableModel(QObject* parent = nullptr);

    /// Takes the problems over. Choice, search, filters and order stay.
    /// \param row  may be -1 for none
    /// \returns the row in which the problem of this row stands now, by its kind and names, or -1
    int setProblems(ProblemList&& problems, int row = -1);
    [[nodiscard]] const ProblemList& problems() const { return m_problems; }
    /// Lets `mark` change which problems are accepted; rows come and go.
    template <class Mark>
    void changeAccepted(Mark mark)
    {
        mark(m_problems);
        count();
        relayout();
    }
    /// The kinds that there are, in their order.
    [[nodiscard]] const std::vector<ProblemKindCount>& kinds() const { return m_kinds; }

    /// \param row 0 to `rowCount() - 1`
    [[nodiscard]] const Problem& problem(int row) const { return *m_rows[m_shown.pointAt(row)]; }
    /// The first row about a point; -1 for none.
    [[nodiscard]] int rowOf(bool isDesign, std::string_view line, std::string_view point) const;

    void setChoice(Choice choice);
    [[nodiscard]] const Choice& choice() const { return m_choice; }
    /// The problems of the choice.
    [[nodiscard]] int unfilteredCount() const { return m_chosen; }

    /// Shows the problems that have this text, in capitals or not, in "line/point", in the name of
    /// the other point, in rover, surveyor, detail or kind.
    void setSearch(const QString& text);
    /// See RowFilter.h.
    void setFilter(int column, const QString& expression);
    /// Why the expression of a column cannot be read, translated; empty when it can.
    [[nodiscard]] QString filterFault(int column) const;
    /// The expression that shows the rows with the value of this cell; empty for no number.
    [[nodiscard]] QString filterFor(const QModelIndex& cell) const;
    [[nodiscard]] bool isFiltered() const;
    void clearFilters();

    /// \param column -1 for the own order
    void sortBy(int column, Qt::SortOrder order);
    /// Shows moments in the time zone of the settings, which may be another now.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : m_shown.count();
    }
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(problemColumns().size());
    }
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    void count();
    void putInOrder();
    [[nodiscard]] std::size_t rankOf(const ProblemKind* kind) const;
    void relayout();
    void arrange();
    [[nodiscard]] bool isChosen(const Problem& problem) const;
    [[nodiscard]] bool isFound(const Problem& problem) const;
    void narrow(Places& places, int column) const;
    void sort(Places& places) const;
    [[nodiscard]] std::string_view text(const Problem& problem, int column) const;
    template <class Judge>
    void keep(Places& places, Judge judge) const;

    ProblemList m_problems;
    std::vector<ProblemKindCount> m_kinds;
    std::vector<const Problem*> m_rows; ///< all, in their own order
    Choice m_choice;
    int m_chosen = 0;
    std::string m_search;                             ///< in small letters
    mutable const ProblemKind* m_foundKind = nullptr; ///< the last one that was searched
    mutable std::string m_foundCaption;               ///< its caption in small letters
    std::vector<QString> m_expressions;
    std::vector<RowFilter> m_filters;
    int m_sortColumn = -1;
    Qt::SortOrder m_sortOrder = Qt::AscendingOrder;
    std::array<QIcon, 3> m_icons; ///< of each severity
    mutable basalt::LocalTimes m_zone;
    QString m_zoneName;
    mutable std::string m_text;
};
