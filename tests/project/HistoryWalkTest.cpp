#include "tests/project/SavedProject.h"

#include <algorithm>
#include <map>
#include <random>

namespace {

/// All data as the history tells of it: remarks by the names of the points, and limits.
struct Snapshot
{
    std::map<std::string, std::string> points;
    std::map<std::string, std::string> limits;

    friend bool operator==(const Snapshot&, const Snapshot&) = default;
};

std::string keyOf(const PointName& name)
{
    return name.line + '/' + name.point;
}

/// Makes a state from the one after an action.
void revert(Snapshot& state, const HistoryAction& action, const HistoryItem& item)
{
    if (item.data == HistoryData::QualityLimits && item.oldText.empty())
        state.limits.erase(item.field);
    else if (item.data == HistoryData::QualityLimits)
        state.limits[item.field] = item.oldText;
    else if (item.change == HistoryChange::Came)
        state.points.erase(keyOf(item.name));
    for (const HistoryField& field : fieldsOf(action, item)) {
        if (field.key == "remarks")
            state.points[keyOf(item.name)] = field.oldText;
    }
}

class HistoryWalk : public SavedProject
{
protected:
    [[nodiscard]] Snapshot snapshot()
    {
        Snapshot state;
        for (const auto& [number, line] : manager.surveyPoints()) {
            for (const SurveyPoint& point : line)
                state.points[keyOf({number, point.pointNumber})] = point.remarks;
        }
        const IDictionary& limits = manager.qualityParameters();
        for (std::size_t i = 0; i < limits.size(); ++i)
            state.limits[std::string(limits.keyAt(i))] = limits.valueAt(i);
        return state;
    }
    [[nodiscard]] std::size_t changes() const
    {
        const auto& entries = manager.unsavedEdits().entries();
        return entries.size() - static_cast<std::size_t>(
                                    std::ranges::count_if(entries, &UnsavedEdits::Entry::isUndone));
    }
    [[nodiscard]] QByteArray rows(int lines, unsigned mark) const
    {
        QByteArray text;
        for (int i = 0; i < lines * 300; ++i)
            text += QByteArray::number(i / 300) + ',' + QByteArray::number(i % 300) + ',' +
                    QByteArray::number(i % 3 == 0 ? mark : 0) + '\n';
        return text;
    }
    PointName randomName() { return {pick(20), pick(300)}; }
    std::string pick(unsigned count) { return std::to_string(random() % count); }
    void change()
    {
        switch (random() % 7) {
        case 0:
            return import(rows(int(random() % 20) + 1, random() % 4));
        case 1:
            remove({randomName(), randomName(), randomName()});
            return;
        case 2:
            manager.deleteSurveyLines({QString::fromStdString(pick(20)), "3"_q});
            return;
        case 3: {
            basalt::Dictionary limits(manager.qualityParameters());
            limits.set("pdop_max", pick(5));
            if (random() % 2 == 0)
                limits.set("only_here", "1");
            else
                limits.remove("only_here");
            return manager.setQualityParameters(limits);
        }
        default: {
            SurveyCorrection correction;
            correction.remarks = pick(9);
            if (random() % 2 == 0)
                correction.pointNumber = pick(300);
            (void)manager.correctSurveyPoint(randomName(), correction);
        }
        }
    }

    std::mt19937 random{21};
};

} // namespace

// Whatever is changed, taken back and saved: from the data of today the history leads back through
// every state that was saved or lay between two changes of one save.
TEST_F(HistoryWalk, LeadsBackThroughEveryState)
{
    std::vector<Snapshot> states;  // before each saved action
    std::vector<Snapshot> unsaved; // before each action that is not saved
    for (int i = 0; i < 130; ++i) {
        const Snapshot before = snapshot();
        if (random() % 4 == 0 && !edits.empty())
            takeBack();
        else
            change();
        if (random() % 8 == 0 && !edits.empty()) { // those up to it stay for ever
            const std::size_t last = random() % edits.size();
            manager.letGo(edits[last]);
            edits.erase(edits.begin(), edits.begin() + static_cast<std::ptrdiff_t>(last) + 1);
        }
        const std::size_t count = changes();
        if (count > unsaved.size())
            unsaved.push_back(before);
        else if (count < unsaved.size())
            unsaved.pop_back();
        if (random() % 5 != 0)
            continue;
        save();
        states.insert(states.end(), unsaved.begin(), unsaved.end());
        unsaved.clear();
        if (random() % 5 == 0)
            reopen();
    }
    save();
    states.insert(states.end(), unsaved.begin(), unsaved.end());

    std::vector<HistoryAction> all = actions();
    std::erase_if(all, [](const auto& action) { return action.state == HistoryState::Undone; });
    ASSERT_EQ(all.size(), states.size());
    Snapshot state = snapshot();
    std::size_t large = 0;
    for (const HistoryAction& action : all) {
        for (const HistoryItem& item : items(action))
            revert(state, action, item);
        large += action.isLarge ? 1U : 0U;
        ASSERT_TRUE(state == states.back()) << action.id << ' ' << action.kind;
        states.pop_back();
    }
    EXPECT_GT(large, 2U) << "the walk misses large actions";
}
