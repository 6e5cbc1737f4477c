#pragma once

#include "project/history/UnsavedEdits.h"

#include <vector>

/// Edits that are not saved yet, as actions of the history, the newest first. An action is named by
/// its place in this order. Edits and data must stay as they are meanwhile.
class UnsavedHistory
{
public:
    using Entries = std::vector<UnsavedEdits::Entry>;

    UnsavedHistory(const Entries& entries, EditedData present)
        : m_entries(entries), m_present(std::move(present))
    {
    }

    [[nodiscard]] std::vector<HistoryAction> actions() const;
    /// All that an action has changed.
    [[nodiscard]] std::vector<HistoryItem> items(std::size_t action) const;
    /// What each action has done to a result and to the design point of the same name.
    [[nodiscard]] std::vector<std::vector<HistoryItem>> life(const PointName& point) const;

private:
    const Entries& m_entries;
    EditedData m_present;
};
