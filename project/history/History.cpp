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
constexpr std::array<const char*, 6> kDataNames{"results",        "design",
                                                "quality_limits", "design_parameters",
                                                "coord_system",   "accepted_problems"};
constexpr std::array<const char*, 3> kChangeNames{"came", "gone", "changed"};

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

QString HistoryAction::title() const
{
    const EditKind* const known = EditKinds::find(kind);
    return known == nullptr ? QString::fromStdString(kind) : known->titleFor(points);
}
