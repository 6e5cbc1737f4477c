#pragma once

#include "project/edits/Edit.h"
#include "project/history/EditWalk.h"
#include "project/history/History.h"

#include <QDateTime>

#include <memory>
#include <vector>

/// What was done and taken back since the project was saved, in order of time.
class UnsavedEdits
{
public:
    struct Entry
    {
        /// That the project differs by. Null when it was taken back again, or let go.
        std::shared_ptr<Edit> edit;
        std::weak_ptr<Edit> undone; ///< the edit that was taken back again
        EditContent content;        ///< of an edit that was let go
        const EditKind* kind = nullptr;
        std::size_t points = 0;
        QString file; ///< that it came from, or empty
        HistoryState state = HistoryState::Done;
        QDateTime time; ///< UTC
        QString reason; ///< of the user's; mostly empty

        [[nodiscard]] bool isUndone() const { return state == HistoryState::Undone; }
    };

    /// So that the next `add` cannot fail.
    void makeRoom();
    /// An edit that is taken back stays as one that changes nothing, until it is done again. One
    /// that is taken back after it was saved, and done again, leaves nothing.
    void add(const std::shared_ptr<Edit>& edit, bool isTakenBack);
    /// To be called when an edit and those before it will not be exchanged any more: keeps what the
    /// history needs of them, which is much less, and not the edits. Without the memory for it
    /// nothing happens.
    void letGo(const std::shared_ptr<Edit>& edit, const EditedData& present);
    /// \param entry  its place in `entries`
    void setReason(std::size_t entry, const QString& reason) { m_entries[entry].reason = reason; }
    void clear() { m_entries.clear(); }

    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }
    /// Whether the project differs by them from the one that was saved.
    [[nodiscard]] bool holdChanges() const;

private:
    std::vector<Entry> m_entries;
};
