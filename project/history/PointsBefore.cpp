#include "lum_sdk/database/RecordSet.h"
#include "project/history/HistoryReader.h"
#include "project/history/HistoryRows.h"
#include "project/history/PointRecord.h"

#include <algorithm>
#include <map>

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
        // The point keeps its name: the one that it had is another item.
        if (const auto at = column - records.columns().begin(); at >= 2 && at < ssize(texts))
            texts[static_cast<std::size_t>(at)] = item->oldText;
    }
    addRow(records, texts);
    typename Points::Point before = typename PointRecord<Points>::Reader().read(records[0]);
    before.pointNumber = point.pointNumber; // with the counter of a check point
    return before;
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
    void takeChanged(const Points& present, Points& before) const
    {
        for (const auto& [name, items] : m_fields) {
            if (const auto* const point = findPresent(present, {name.first, name.second}, items))
                before.set(withFields<Points>(*point, items));
        }
    }

private:
    RecordSet m_whole;
    std::map<std::pair<std::string, std::string>, std::vector<const HistoryItem*>> m_fields;
};

} // namespace

HistoryPoints pointsBefore(const HistoryAction& action, const std::vector<HistoryItem>& items,
                           const DesignPoints& presentDesign, const SurveyPoints& presentResults)
{
    Before<DesignPoints> design(action.designColumns);
    Before<SurveyPoints> results(action.resultColumns);
    for (const HistoryItem& item : items) {
        if (item.data == HistoryData::Design)
            design.add(item);
        else if (item.data == HistoryData::Results)
            results.add(item);
    }
    HistoryPoints before;
    design.takeChanged(presentDesign, before.design);
    design.takeWhole([&](DesignPoint&& point) { before.design.set(std::move(point)); });
    results.takeChanged(presentResults, before.results);
    SurveyPointFiler filer(before.results, &presentResults);
    results.takeWhole([&](SurveyPoint&& point) { filer.file(std::move(point)); });
    return before;
}
