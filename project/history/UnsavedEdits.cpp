#include "project/history/UnsavedEdits.h"

#include "basalt_utilities/ILogger.h"

#include <algorithm>
#include <utility>

void UnsavedEdits::makeRoom()
{
    if (m_entries.size() == m_entries.capacity())
        m_entries.reserve(2 * m_entries.size() + 8);
}

void UnsavedEdits::add(const std::shared_ptr<Edit>& edit, bool isTakenBack)
{
    std::erase_if(m_entries, [&](const Entry& entry) { return entry.undone.lock() == edit; });
    const auto last = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                   [](const Entry& entry) { return !entry.isUndone(); });
    if (last == m_entries.rend() || last->edit != edit) {
        m_entries.push_back({edit,
                             {},
                             {},
                             &edit->kind(),
                             edit->points(),
                             edit->file(),
                             isTakenBack ? HistoryState::TakenBack : HistoryState::Done,
                             QDateTime::currentDateTimeUtc(),
                             {}});
    } else if (last->state == HistoryState::TakenBack) {
        m_entries.erase(std::next(last).base());
    } else {
        last->state = HistoryState::Undone;
        last->undone = std::exchange(last->edit, nullptr);
    }
}

void UnsavedEdits::letGo(const std::shared_ptr<Edit>& edit, const EditedData& present)
{
    const auto newest = std::find_if(m_entries.rbegin(), m_entries.rend(),
                                     [&](const Entry& entry) { return entry.edit == edit; });
    if (newest == m_entries.rend())
        return;
    try {
        EditWalk walk(present);
        std::vector<std::pair<Entry*, EditContent>> contents;
        for (auto entry = m_entries.rbegin(); entry != m_entries.rend(); ++entry) {
            if (entry->edit == nullptr)
                continue;
            if (entry < newest) {
                walk.pass(*entry->edit);
                continue;
            }
            contents.emplace_back(&*entry, walk.contentOf(*entry->edit));
            contents.back().second.compress();
        }
        for (auto& [entry, content] : contents) {
            entry->content = std::move(content);
            entry->edit.reset();
        }
    } catch (const std::bad_alloc&) {
        basalt::logWarning("There is not enough memory to keep an edit in less of it.");
    }
}

bool UnsavedEdits::holdChanges() const
{
    return !std::ranges::all_of(m_entries, &Entry::isUndone);
}
