#pragma once

#include "views/tables/ShownRows.h"

#include <QAbstractTableModel>

#include <cstdint>
#include <limits>
#include <vector>

/// A table that shows some of its things, in an order that changes.
class ShownRowsModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

protected:
    using Places = std::vector<std::uint32_t>;
    static constexpr auto kGone = std::numeric_limits<std::uint32_t>::max();

    /// Lets `arrange(places)` fill `m_shown` anew. Persistent indexes keep their things; those of
    /// things that no row shows become invalid.
    /// \param arrange  is given the things of these indexes; when it counts all things anew, it
    ///                 puts their new numbers in place of them, or `kGone`
    template <class Arrange>
    void changeLayout(Arrange arrange)
    {
        using Hint = QAbstractItemModel::LayoutChangeHint;
        Q_EMIT layoutAboutToBeChanged({}, Hint::VerticalSortHint);
        const QModelIndexList before = persistentIndexList();
        Places places;
        places.reserve(static_cast<std::size_t>(before.size()));
        for (const QModelIndex& index : before)
            places.push_back(m_shown.pointAt(index.row()));
        arrange(places);
        QModelIndexList after;
        after.reserve(before.size());
        for (int i = 0; i < before.size(); ++i) {
            const std::uint32_t place = places[static_cast<std::size_t>(i)];
            const int row = place == kGone ? -1 : m_shown.rowOf(place);
            after.append(row < 0 ? QModelIndex() : createIndex(row, before[i].column()));
        }
        changePersistentIndexList(before, after);
        Q_EMIT layoutChanged({}, Hint::VerticalSortHint);
    }

    ShownRows m_shown;
};
