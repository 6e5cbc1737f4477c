#pragma once

#include "views/problems/ProblemTableModel.h"

#include <QTreeWidget>

#include <utility>
#include <vector>

/// The kinds of the problems that there are, with their numbers, to choose which are shown: all
/// that are open, those of one or several kinds, or the accepted ones.
class ProblemKindBar final : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ProblemKindBar(QWidget* parent);

    /// A chosen kind stays chosen while it is there.
    void setKinds(const std::vector<ProblemKindCount>& kinds);
    [[nodiscard]] ProblemTableModel::Choice choice() const;
    /// Chooses all that are open.
    void chooseAll();

Q_SIGNALS:
    void chosen();

private:
    enum class Entry
    {
        AllOpen,
        Kind,
        Accepted
    };
    using Place = std::pair<Entry, const ProblemKind*>;

    void addEntry(const Place& place, const QString& caption, int count, const QIcon& icon);
    [[nodiscard]] std::vector<Place> chosenPlaces() const;

    std::vector<Place> m_places; ///< of each row
};
