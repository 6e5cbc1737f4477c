#include "lum_sdk/database/RecordSet.h"
#include "project/edits/EditKinds.h"
#include "project/history/HistoryReader.h"
#include "project/history/HistoryRows.h"
#include "project/history/PointRecord.h"
#include "project/history/RenamedResults.h"

#include <algorithm>
#include <map>
#include <set>

namespace {

void addRow(RecordSet& records, const std::vector<std::string>& texts)
{
    for (std::size_t i = 0; i < records.columns().size(); ++i) {
        if (i < texts.size())
            records.add(texts[i]);
        else
            records.addNull();
    }
}

/// The point as it is with some fields as the items say they were.
template <class Points>
typename Points::Point withFields(const typename Points::Point& point,
                                  const std::vector<const HistoryItem*>& items)
{
    RecordTexts present;
    PointRecord<Points>::write(point, present);
    RecordSet records;
    records.reset(listedColumns(PointRecord<Points>::columns()));
    std::vector<std::string> texts(present.values(), present.values() + present.size());
    for (const HistoryItem* const item : items) {
        const auto column = std::ranges::find(records.columns(), item->field);
        if (const auto at = column - records.columns().begin(); at < ssize(texts))
            texts[static_cast<std::size_t>(at)] = item->oldText;
    }
    addRow(records, texts);
    return typename PointRecord<Points>::Reader().read(records[0]);
}

/// The result as it is with these fields as they were.
SurveyPoint withOldFields(const SurveyPoint& result, const std::vector<HistoryField>& fields)
{
    std::vector<HistoryItem> items;
    items.reserve(fields.size());
    for (const HistoryField& field : fields)
        items.push_back({HistoryData::Results,
                         HistoryChange::Changed,
                         {},
                         field.key,
                         field.oldText,
                         field.newText});
    std::vector<const HistoryItem*> pointers;
    pointers.reserve(items.size());
    for (const HistoryItem& item : items)
        pointers.push_back(&item);
    return withFields<SurveyPoints>(result, pointers);
}

/// Of the measurements of a check point, the one that the items have changed.
const SurveyPoint* findPresent(const SurveyPoints& present, const PointName& name,
                               const std::vector<const HistoryItem*>& items)
{
    if (!isCheckPoint(name.point))
        return present.find(name.line, name.point);
    const SurveyPoints::Line* const line = present.findLine(name.line);
    if (line == nullptr)
        return nullptr;
    const std::vector<std::string> columns = listedColumns(SurveyRecord::columns());
    for (const SurveyPoint& point : *line) {
        if (writtenPointNumber(point.pointNumber) != name.point)
            continue;
        RecordTexts texts;
        SurveyRecord::write(point, texts);
        if (std::ranges::all_of(items, [&](const HistoryItem* item) {
                const auto at = std::ranges::find(columns, item->field) - columns.begin();
                return at < std::ptrdiff_t(texts.size()) && texts.values()[at] == item->newText;
            }))
            return &point;
    }
    return nullptr;
}

const DesignPoint* findPresent(const DesignPoints& present, const PointName& name,
                               const std::vector<const HistoryItem*>& /*items*/)
{
    return present.find(name.line, name.point);
}

/// Collects the items of one kind of points.
template <class Points>
class Before
{
public:
    explicit Before(const std::string& columns) { m_whole.reset(listedColumns(columns)); }

    void add(const HistoryItem& item)
    {
        if (!item.field.empty())
            m_fields[{item.name.line, item.name.point}].push_back(&item);
        else if (item.change != HistoryChange::Came)
            addRow(m_whole, unpackedRow(item.oldText));
    }

    /// \param file  called with each whole point
    template <class File>
    void takeWhole(File file) const
    {
        typename PointRecord<Points>::Reader reader;
        for (std::size_t i = 0; i < m_whole.size(); ++i)
            file(reader.read(m_whole[i]));
    }
    /// \param rename  called with each point that had another name, and the name that it has
    template <class Rename>
    void takeChanged(const Points& present, Points& before, Rename rename) const
    {
        for (const auto& [name, items] : m_fields) {
            const auto* const point = findPresent(present, {name.first, name.second}, items);
            if (point == nullptr)
                continue;
            auto was = withFields<Points>(*point, items);
            if (std::ranges::any_of(items, [](const auto* item) {
                    return item->field == "line_num" || item->field == "point_num";
                })) {
                rename(std::move(was), PointName{point->lineNumber, point->pointNumber});
                continue;
            }
            was.pointNumber = point->pointNumber; // with the counter of a check point
            before.set(std::move(was));
        }
    }

private:
    RecordSet m_whole;
    std::map<std::pair<std::string, std::string>, std::vector<const HistoryItem*>> m_fields;
};

/// Files results in place of those that stand there.
class ResultsBefore
{
public:
    ResultsBefore(const SurveyPoints& present, HistoryPoints& before)
        : m_present(present), m_before(before), m_filer(before.results, &present)
    {
    }

    void addRenamed(SurveyPoint&& point, PointName&& present)
    {
        if (point.lineNumber == present.line &&
            point.pointNumber == writtenPointNumber(present.point)) { // it has its name back
            point.pointNumber = present.point;
            m_before.results.set(std::move(point));
            return;
        }
        const SurveyPoint& filed = m_filer.file(std::move(point));
        m_renamed.insert({filed.lineNumber, std::string(writtenPointNumber(filed.pointNumber))});
        m_leaving.push_back(std::move(present));
    }
    void addWhole(SurveyPoint&& point)
    {
        if (m_renamed.contains({point.lineNumber, point.pointNumber}))
            return; // the same result once more
        if (const SurveyPoint* const same = findSame(point)) {
            point.pointNumber = same->pointNumber;
            m_before.results.set(std::move(point));
        } else {
            m_filer.file(std::move(point));
        }
    }
    void addLeaving(const PointName& name)
    {
        if (m_present.find(name.line, name.point) != nullptr)
            m_leaving.push_back(name);
    }
    void finish() { m_before.leaving = PointNames(m_leaving); }

private:
    /// The measurement of a check point that stands as it was, and is not among the points yet.
    const SurveyPoint* findSame(const SurveyPoint& point)
    {
        const SurveyPoints::Line* const line = m_present.findLine(point.lineNumber);
        if (!isCheckPoint(point.pointNumber) || line == nullptr)
            return nullptr;
        const auto same = std::find_if(line->begin(), line->end(), [&](const SurveyPoint& present) {
            return writtenPointNumber(present.pointNumber) == point.pointNumber &&
                   m_before.results.find(present.lineNumber, present.pointNumber) == nullptr &&
                   m_isSame(present, point);
        });
        return same == line->end() ? nullptr : &*same;
    }

    const SurveyPoints& m_present;
    HistoryPoints& m_before;
    SurveyPointFiler m_filer;
    SameRecord<SurveyPoints> m_isSame;
    std::set<std::pair<std::string, std::string>> m_renamed;
    std::vector<PointName> m_leaving;
};

} // namespace

HistoryPoints pointsBefore(const HistoryAction& action, const std::vector<HistoryItem>& items,
                           const DesignPoints& presentDesign, const SurveyPoints& presentSurvey)
{
    const bool isRenamed = action.kind == EditKinds::kRenameResults.name;
    const bool isResolved = action.kind == EditKinds::kResolveRepeats.name;
    HistoryPoints before;
    ResultsBefore filer(presentSurvey, before);
    Before<DesignPoints> design(action.designColumns);
    Before<SurveyPoints> results(action.resultColumns);
    for (const HistoryItem& item : items) {
        if (item.data == HistoryData::Design)
            design.add(item);
        else if (item.data == HistoryData::Results && !isRenamed)
            results.add(item);
        if (item.data == HistoryData::Results && isResolved && item.change == HistoryChange::Came)
            filer.addLeaving(item.name);
    }
    const auto rename = [&](SurveyPoint&& was, PointName&& name) {
        filer.addRenamed(std::move(was), std::move(name));
    };
    design.takeChanged(presentDesign, before.design, [](auto&&...) {}); // they keep their names
    design.takeWhole([&](DesignPoint&& point) { before.design.set(std::move(point)); });
    results.takeChanged(presentSurvey, before.results, rename);
    results.takeWhole([&](SurveyPoint&& point) { filer.addWhole(std::move(point)); });
    if (isRenamed) {
        for (const auto& [item, result] : presentResults(action, items, presentSurvey))
            rename(withOldFields(*result, fieldsOf(action, *item)),
                   {result->lineNumber, result->pointNumber});
    }
    filer.finish();
    return before;
}
