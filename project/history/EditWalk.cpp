#include "project/history/EditWalk.h"

#include "project/history/HistoryTables.h"
#include "project/history/PointRecord.h"

#include <QScopedValueRollback>

#include <algorithm>
#include <span>

namespace {

HistoryData dataOf(EditScope which)
{
    if (which == kQualityScope)
        return HistoryData::QualityLimits;
    return which == kDesignParameterScope ? HistoryData::DesignParameters
                                          : HistoryData::CoordSystem;
}

/// Writes the points of one kind that an edit has changed.
template <class Points>
class PointWriter
{
    using Point = typename Points::Point;
    using Record = PointRecord<Points>;
    using Changes = typename ChangedPoints<Points>::Changes;

public:
    /// \param rows     gets the points of a large edit; or null
    /// \param isWhole  points that have changed are written whole
    PointWriter(std::vector<HistoryItem>& items, HistoryRows* rows, bool isWhole)
        : m_items(items), m_rows(rows), m_isWhole(isWhole || rows != nullptr)
    {
    }

    void write(const Changes& changes)
    {
        for (const auto& [before, after] : changes) {
            if (before == nullptr)
                add(Record::nameOf(*after), HistoryChange::Came, {});
            else if (after == nullptr)
                addWhole(*before, HistoryChange::Gone);
            else if (!m_isWhole)
                addFields(*before, *after);
            else if (differs(*before, *after))
                addWhole(*before, HistoryChange::Changed, after);
        }
    }
    /// Points under other names: those that are under none of the old ones, and each as it was,
    /// under its new one.
    void writeRenamed(const Changes& changes, const Changes& renamed)
    {
        for (const auto& [before, after] : changes) {
            if (after == nullptr)
                addWhole(*before, HistoryChange::Gone);
        }
        for (const auto& [before, after] : renamed)
            addWhole(*before, HistoryChange::Changed, after);
    }
    /// A point that came under another name: the fields that a correction has changed.
    void writeCorrected(const Changes& changes)
    {
        const auto gone =
            std::ranges::find(changes, nullptr, [](const auto& c) { return c.after; });
        const auto came =
            std::ranges::find(changes, nullptr, [](const auto& c) { return c.before; });
        if (gone != changes.end() && came != changes.end())
            addFields(*gone->before, *came->after);
    }
    [[nodiscard]] bool holdsWhole() const { return m_holdsWhole; }

private:
    [[nodiscard]] bool differs(const Point& before, const Point& after)
    {
        bool isDifferent = false;
        forEachDifference(before, after, [&](std::size_t) { isDifferent = true; });
        return isDifferent;
    }

    void addFields(const Point& before, const Point& after)
    {
        forEachDifference(before, after, [&](std::size_t i) {
            m_items.push_back({Record::kData, HistoryChange::Changed, Record::nameOf(after),
                               m_columns[i], std::string(m_before->values()[i]),
                               std::string(m_after->values()[i])});
        });
    }

    template <class Visit>
    void forEachDifference(const Point& before, const Point& after, Visit visit)
    {
        Record::write(before, *m_before);
        Record::write(after, *m_after);
        for (std::size_t i = 0; i < m_before->size(); ++i) {
            if (m_before->values()[i] != m_after->values()[i] && !m_isVerdict[i])
                visit(i);
        }
    }

    /// \param after  what it has become; or null
    void addWhole(const Point& before, HistoryChange change, const Point* after = nullptr)
    {
        add(Record::nameOf(after == nullptr ? before : *after), change, rowOf(before),
            after == nullptr || m_rows != nullptr ? std::string() : rowOf(*after));
        m_holdsWhole = true;
    }

    [[nodiscard]] std::string rowOf(const Point& point)
    {
        Record::write(point, *m_before);
        return packedRow({m_before->values(), m_before->size()});
    }

    void add(PointName&& name, HistoryChange change, std::string&& row, std::string&& newRow = {})
    {
        if (m_rows != nullptr)
            m_rows->add(name, change, row);
        else
            m_items.push_back(
                {Record::kData, change, std::move(name), {}, std::move(row), std::move(newRow)});
    }

    [[nodiscard]] static std::vector<bool> verdicts(const std::vector<std::string>& columns)
    {
        std::vector<bool> areVerdicts;
        areVerdicts.reserve(columns.size());
        for (const std::string& column : columns)
            areVerdicts.push_back(::isVerdict<Points>(column));
        return areVerdicts;
    }

    std::vector<HistoryItem>& m_items;
    HistoryRows* m_rows;
    bool m_isWhole;
    std::vector<std::string> m_columns = listedColumns(Record::columns());
    std::vector<bool> m_isVerdict = verdicts(m_columns);
    std::unique_ptr<RecordTexts> m_before = std::make_unique<RecordTexts>();
    std::unique_ptr<RecordTexts> m_after = std::make_unique<RecordTexts>();
    bool m_holdsWhole = false;
};

using ResultChanges = ChangedPoints<SurveyPoints>::Changes;

/// The results of a renaming as they were under the old name and are under the new one.
ResultChanges renamedOf(const ResultChanges& changes)
{
    MeasurementText measurementOf;
    std::multimap<std::string, const SurveyPoint*> before;
    for (const auto& change : changes) {
        if (change.before != nullptr)
            before.emplace(measurementOf(*change.before), change.before);
    }
    ResultChanges renamed;
    for (const auto& change : changes) {
        const auto same =
            change.after == nullptr ? before.end() : before.find(measurementOf(*change.after));
        if (same == before.end())
            continue;
        renamed.push_back({same->second, change.after});
        before.erase(same);
    }
    return renamed;
}

template <class Points>
void keepOnly(const PointName& name, typename ChangedPoints<Points>::Changes& changes)
{
    std::erase_if(changes, [&](const auto& change) {
        return PointRecord<Points>::nameOf(
                   *(change.after != nullptr ? change.after : change.before)) != name;
    });
}

} // namespace

void EditContent::compress()
{
    designRows = HistoryRows(designRows.blob());
    resultRows = HistoryRows(resultRows.blob());
    items.shrink_to_fit();
}

void EditWalk::pass(const Edit& edit)
{
    const QScopedValueRollback<bool> passing(m_isPassing, true);
    hear(edit);
}

void EditWalk::hear(const Edit& edit)
{
    m_designChanges.clear();
    m_resultChanges.clear();
    m_parameterItems.clear();
    edit.tell(m_present, *this);
}

EditContent EditWalk::contentOf(const Edit& edit, const PointName* only)
{
    hear(edit);
    const bool isRenaming = &edit.kind() == &EditKinds::kRenameResults;
    ResultChanges renamed = isRenaming ? renamedOf(m_resultChanges) : ResultChanges();
    const auto hasManyPoints = [this] {
        return m_designChanges.size() + m_resultChanges.size() > HistoryTables::kMostItems;
    };
    if (only != nullptr && hasManyPoints()) {
        keepOnly<DesignPoints>(*only, m_designChanges);
        keepOnly<SurveyPoints>(*only, m_resultChanges);
        keepOnly<SurveyPoints>(*only, renamed);
    }
    EditContent content;
    const bool isLarge = hasManyPoints();
    PointWriter<SurveyPoints> results(content.items, isLarge ? &content.resultRows : nullptr,
                                      &edit.kind() == &EditKinds::kResolveRepeats);
    if (isRenaming)
        results.writeRenamed(m_resultChanges, renamed);
    else
        results.write(m_resultChanges);
    if (&edit.kind() == &EditKinds::kCorrectResult)
        results.writeCorrected(m_resultChanges);
    content.holdsResults = results.holdsWhole();
    PointWriter<DesignPoints> design(content.items, isLarge ? &content.designRows : nullptr, false);
    design.write(m_designChanges);
    content.holdsDesign = design.holdsWhole();
    std::ranges::move(m_parameterItems, std::back_inserter(content.items));
    return content;
}

void EditWalk::parametersChanged(EditScope which, const IDictionary& before,
                                 const IDictionary& after)
{
    const IDictionary*& present = m_parameters.try_emplace(which, &after).first->second;
    const auto add = [&](std::string_view key) {
        if (before.find(key) != present->find(key))
            m_parameterItems.push_back({dataOf(which),
                                        HistoryChange::Changed,
                                        {},
                                        std::string(key),
                                        std::string(before.text(key)),
                                        std::string(present->text(key))});
    };
    for (std::size_t i = 0; i < before.size(); ++i)
        add(before.keyAt(i));
    for (std::size_t i = 0; i < present->size(); ++i) {
        if (!before.contains(present->keyAt(i)))
            add(present->keyAt(i));
    }
    present = &before;
}

void EditWalk::acceptancesChanged(const std::vector<Acceptance>& problems,
                                  const Acceptances& before)
{
    m_acceptances.walk(problems, before, m_parameterItems);
}
