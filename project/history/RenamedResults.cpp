#include "project/history/RenamedResults.h"

#include "lum_sdk/database/RecordSet.h"
#include "project/edits/EditKinds.h"
#include "project/history/HistoryRows.h"
#include "project/history/PointRecord.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

using Name = std::pair<std::string, std::string>;

bool isWhole(const HistoryItem& item)
{
    return item.data == HistoryData::Results && item.field.empty();
}

/// The result of a whole item as it was.
SurveyPoint resultOf(const HistoryAction& action, const HistoryItem& item)
{
    RecordSet record;
    record.reset(listedColumns(action.resultColumns));
    std::vector<std::string> texts = unpackedRow(item.oldText);
    texts.resize(record.columns().size());
    for (const std::string& text : texts)
        record.add(text);
    return SurveyRecord::Reader().read(record[0]);
}

Name oldNameOf(const HistoryAction& action, const HistoryItem& item)
{
    const SurveyPoint result = resultOf(action, item);
    return {result.lineNumber, std::string(writtenPointNumber(result.pointNumber))};
}

/// The items that hang together with the names of some, by the names before and after.
std::vector<HistoryItem> together(const HistoryAction& action, const std::vector<HistoryItem>& all,
                                  const std::vector<HistoryItem>& some)
{
    std::map<Name, std::vector<std::size_t>> itemsOf;
    std::vector<Name> olds;
    olds.reserve(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        olds.push_back(oldNameOf(action, all[i]));
        for (const Name& name : {olds.back(), Name(all[i].name.line, all[i].name.point)})
            itemsOf[name].push_back(i);
    }
    std::set<std::size_t> chosen;
    std::vector<Name> reached;
    reached.reserve(some.size());
    for (const HistoryItem& item : some)
        reached.emplace_back(item.name.line, item.name.point);
    while (!reached.empty()) {
        const Name name = std::move(reached.back());
        reached.pop_back();
        for (const std::size_t i : itemsOf[name]) {
            if (!chosen.insert(i).second)
                continue;
            reached.push_back(olds[i]);
            reached.emplace_back(all[i].name.line, all[i].name.point);
        }
    }
    std::vector<HistoryItem> items;
    items.reserve(chosen.size());
    for (const std::size_t i : chosen)
        items.push_back(all[i]);
    return items;
}

} // namespace

bool isRenaming(const HistoryAction& action)
{
    return action.kind == EditKinds::kRenameResults.name ||
           action.kind == EditKinds::kCorrectResult.name;
}

bool isRename(const HistoryAction& action, const HistoryItem& item)
{
    if (action.kind == EditKinds::kRenameResults.name)
        return isWhole(item) && item.change == HistoryChange::Changed;
    return item.data == HistoryData::Results &&
           (item.field == "line_num" || item.field == "point_num");
}

std::vector<HistoryItem> withRenamed(const HistoryAction& action,
                                     const std::vector<HistoryItem>& all,
                                     const std::vector<HistoryItem>& some)
{
    if (action.kind == EditKinds::kRenameResults.name)
        return together(action, all, some);
    const auto tellsName = [&](const HistoryItem& item) { return isRename(action, item); };
    const bool isOfName = std::ranges::any_of(
        some, [&](const HistoryItem& item) { return isWhole(item) || tellsName(item); });
    return isOfName && std::ranges::any_of(all, tellsName) ? all : some;
}

std::vector<RenamedResult> presentResults(const HistoryAction& action,
                                          const std::vector<HistoryItem>& items,
                                          const SurveyPoints& present)
{
    MeasurementText measurementOf;
    std::multimap<std::string, const HistoryItem*> wanted;
    std::set<std::int64_t> times; // to tell most results at once
    for (const HistoryItem& item : items) {
        if (!isRename(action, item))
            continue;
        const SurveyPoint was = resultOf(action, item);
        times.insert(was.dateTime);
        wanted.emplace(measurementOf(was), &item);
    }
    std::vector<RenamedResult> found;
    for (const auto& [number, line] : present) {
        for (const SurveyPoint& point : line) {
            if (!times.contains(point.dateTime))
                continue;
            const auto same = wanted.find(measurementOf(point));
            if (same == wanted.end())
                continue;
            found.emplace_back(same->second, &point);
            wanted.erase(same);
        }
    }
    return found;
}
