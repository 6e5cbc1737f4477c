#include "project/history/History.h"

#include "project/edits/EditKinds.h"

#include <algorithm>
#include <array>

namespace {

template <class Value, std::size_t kCount>
std::optional<Value> valueOf(const std::array<const char*, kCount>& names, std::string_view name)
{
    const auto* const found = std::ranges::find(names, name);
    if (found == names.end())
        return std::nullopt;
    return static_cast<Value>(found - names.begin());
}

// In the order of the values; they stand in databases that are kept for years.
constexpr std::array<const char*, 5> kDataNames{"results", "design", "quality_limits",
                                                "design_parameters", "coord_system"};
constexpr std::array<const char*, 3> kChangeNames{"came", "gone", "changed"};
constexpr std::array<const char*, 3> kStateNames{"done", "taken_back", "done_and_taken_back"};

} // namespace

const char* nameOf(HistoryData data)
{
    return kDataNames[static_cast<std::size_t>(data)];
}

std::optional<HistoryData> historyDataOf(std::string_view name)
{
    return valueOf<HistoryData>(kDataNames, name);
}

const char* nameOf(HistoryChange change)
{
    return kChangeNames[static_cast<std::size_t>(change)];
}

std::optional<HistoryChange> historyChangeOf(std::string_view name)
{
    return valueOf<HistoryChange>(kChangeNames, name);
}

const char* nameOf(HistoryState state)
{
    return kStateNames[static_cast<std::size_t>(state)];
}

std::optional<HistoryState> historyStateOf(std::string_view name)
{
    return valueOf<HistoryState>(kStateNames, name);
}

QString HistoryAction::title() const
{
    const EditKind* const known = EditKinds::find(kind);
    return known == nullptr ? QString::fromStdString(kind) : known->titleFor(points);
}
