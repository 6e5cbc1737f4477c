#include "project/history/History.h"

#include "model/PointNumber.h"
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

bool saysSomething(std::string_view text)
{
    const bool isZero = text.find_first_not_of("-.0") == std::string_view::npos &&
                        text.find('0') != std::string_view::npos;
    return !text.empty() && !isZero;
}

std::vector<PointName> pointNamesOf(const QString& text)
{
    std::vector<PointName> names;
    for (int slash = text.lastIndexOf(u'/'); slash > 0; slash = text.lastIndexOf(u'/', slash - 1)) {
        const std::string point = text.mid(slash + 1).toStdString();
        if (!point.empty())
            names.push_back(
                {text.left(slash).toStdString(), std::string(writtenPointNumber(point))});
    }
    return names;
}

QString HistoryAction::title() const
{
    const EditKind* const known = EditKinds::find(kind);
    return known == nullptr ? QString::fromStdString(kind) : known->titleFor(points);
}
