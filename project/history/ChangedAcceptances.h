#pragma once

#include "project/history/History.h"
#include "quality/problems/Acceptance.h"

#include <map>
#include <vector>

/// The accepted problems on a walk through edits from the last to the first: as they were after the
/// edit that comes next. Keeps pointers into the acceptances that it is told.
class ChangedAcceptances
{
public:
    explicit ChangedAcceptances(const Acceptances& present) : m_present(present) {}

    /// An edit has changed the acceptances of these problems. \param before  those that were there
    void walk(const std::vector<Acceptance>& problems, const Acceptances& before,
              std::vector<HistoryItem>& items);

private:
    const Acceptances& m_present;
    /// Over `m_present`, by problem; null for one that was not accepted.
    std::map<Acceptance, const Acceptance*, Acceptance::Order> m_later;
};
