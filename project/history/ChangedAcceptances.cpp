#include "project/history/ChangedAcceptances.h"

namespace {

HistoryItem itemOf(const Acceptance* before, const Acceptance* after)
{
    const Acceptance& problem = before != nullptr ? *before : *after;
    HistoryItem item;
    item.data = HistoryData::AcceptedProblems;
    item.change = before == nullptr  ? HistoryChange::Came
                  : after == nullptr ? HistoryChange::Gone
                                     : HistoryChange::Changed;
    item.name = problem.name;
    item.field = problem.kind;
    if (before != nullptr)
        item.oldText = before->reason.toStdString();
    if (after != nullptr)
        item.newText = after->reason.toStdString();
    return item;
}

} // namespace

void ChangedAcceptances::walk(const std::vector<Acceptance>& problems, const Acceptances& before,
                              std::vector<HistoryItem>& items)
{
    for (const Acceptance& problem : problems) {
        const Acceptance* const old = before.find(problem);
        const Acceptance*& after =
            m_later.try_emplace(problem, m_present.find(problem)).first->second;
        if (old != nullptr || after != nullptr)
            items.push_back(itemOf(old, after));
        after = old;
    }
}
