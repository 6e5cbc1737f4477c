#include "views/history/PointRestore.h"

#include "lum_sdk/GroupedNumber.h"
#include "project/DataProcessDataManager.h"
#include "project/edits/EditKinds.h"
#include "project/history/PointRecord.h"
#include "project/history/RenamedResults.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>
#include <tuple>

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("PointRestore", text);
}

bool contains(const PointNames& names, const std::string& line, const std::string& number)
{
    const auto numbers = names.lines().find(line);
    return numbers != names.lines().end() && std::ranges::binary_search(numbers->second, number);
}

/// Removes the points that are in the project as they are here.
template <class Points>
void removeUnchanged(const Points& present, const PointNames& leaving, Points& points,
                     PointRestore& result)
{
    SameRecord<Points> isSame;
    std::vector<PointName> same;
    for (const auto& [number, line] : points) {
        for (const auto& point : line) {
            const auto* const standing = present.find(number, point.pointNumber);
            if (standing != nullptr && isSame(point, *standing))
                same.push_back({number, point.pointNumber});
            else if (standing != nullptr && !contains(leaving, number, point.pointNumber))
                ++result.replacing;
        }
    }
    result.unchanged += same.size();
    (void)points.extract(PointNames(same));
}

/// How many points the items are about. Measurements of one check point have one name.
std::size_t pointsOf(const HistoryAction& action, const std::vector<HistoryItem>& items,
                     PointRestore& result)
{
    const auto renamed =
        std::ranges::count_if(items, [&](const auto& item) { return isRename(action, item); });
    if (renamed > 0) // a correction renames one, in several items
        return action.kind == EditKinds::kCorrectResult.name ? 1
                                                             : static_cast<std::size_t>(renamed);
    std::size_t points = 0;
    std::set<std::tuple<HistoryData, std::string, std::string>> named;
    for (const HistoryItem& item : items) {
        if (item.data == HistoryData::AcceptedProblems)
            ++result.acceptances;
        else if (item.data != HistoryData::Results && item.data != HistoryData::Design)
            ++result.parameters;
        else if (item.field.empty())
            ++points;
        else
            named.emplace(item.data, item.name.line, item.name.point);
    }
    return points + named.size();
}

} // namespace

QString PointRestore::told() const
{
    QStringList sentences;
    const auto add = [&](std::size_t count, const char* text) {
        if (count > 0)
            sentences << translated(text).arg(lum::groupedNumber(count));
    };
    sentences << translated(QT_TRANSLATE_NOOP("PointRestore", "Points restored: %1."))
                     .arg(lum::groupedNumber(restored));
    add(replacing, QT_TRANSLATE_NOOP("PointRestore", "In place of another state: %1."));
    add(withdrawn, QT_TRANSLATE_NOOP("PointRestore", "Taken away, since their measurements are "
                                                     "back: %1."));
    add(unchanged, QT_TRANSLATE_NOOP("PointRestore", "Already so: %1."));
    add(impossible,
        QT_TRANSLATE_NOOP("PointRestore",
                          "Not restored, because they were new then or are gone now: %1."));
    add(parameters, QT_TRANSLATE_NOOP("PointRestore", "Parameters cannot be restored here: %1."));
    add(acceptances,
        QT_TRANSLATE_NOOP("PointRestore", "Accepted problems cannot be restored here: %1."));
    return sentences.join(QLatin1Char(' '));
}

PointRestore restorePoints(const HistoryAction& action, const std::vector<HistoryItem>& items)
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    HistoryPoints points =
        pointsBefore(action, items, manager.designPoints(), manager.surveyPoints());
    const std::size_t found = points.design.pointCount() + points.results.pointCount();
    PointRestore result;
    const std::size_t asked = pointsOf(action, items, result);
    result.impossible = asked - std::min(asked, found);
    removeUnchanged(manager.designPoints(), {}, points.design, result);
    removeUnchanged(manager.surveyPoints(), points.leaving, points.results, result);
    const bool isResolved = action.kind == EditKinds::kResolveRepeats.name;
    const std::size_t leaving = isResolved ? points.leaving.count() : 0;
    result.restored = manager.restorePoints(std::move(points));
    if (result.restored > 0) {
        result.withdrawn = leaving;
        result.impossible -= std::min(result.impossible, leaving);
    }
    return result;
}
