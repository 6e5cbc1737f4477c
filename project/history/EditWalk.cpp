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
    /// \param rows  gets the points of a large edit; or null
    PointWriter(std::vector<HistoryItem>& items, HistoryRows* rows) : m_items(items), m_rows(rows)
    {
    }

    void write(const Changes& changes)
    {
        for (const auto& [before, after] : changes) {
            if (before == nullptr)
                add(Record::nameOf(*after), HistoryChange::Came, {});
            else if (after == nullptr)
                addWhole(*before, HistoryChange::Gone);
            else if (differs(*before, *after) && m_rows != nullptr)
                addWhole(*before, HistoryChange::Changed);
            else
                addFields(*before, *after);
        }
    }
    /// A point that came under another name: the fields that a correction has changed.
    void writeRenamed(const Changes& changes)
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

    void addWhole(const Point& point, HistoryChange change)
    {
        Record::write(point, *m_before);
        add(Record::nameOf(point), change, packedRow({m_before->values(), m_before->size()}));
        m_holdsWhole = true;
    }

    void add(PointName&& name, HistoryChange change, std::string&& row)
    {
        if (m_rows != nullptr)
            m_rows->add(name, change, row);
        else
            m_items.push_back({Record::kData, change, std::move(name), {}, std::move(row), {}});
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
    std::vector<std::string> m_columns = listedColumns(Record::columns());
    std::vector<bool> m_isVerdict = verdicts(m_columns);
    std::unique_ptr<RecordTexts> m_before = std::make_unique<RecordTexts>();
    std::unique_ptr<RecordTexts> m_after = std::make_unique<RecordTexts>();
    bool m_holdsWhole = false;
};

/// \returns whether whole points were written
template <class Points>
bool writePoints(const typename ChangedPoints<Points>::Changes& changes, bool isCorrection,
                 std::vector<HistoryItem>& items, HistoryRows* rows)
{
    if (changes.empty())
        return false;
    PointWriter<Points> writer(items, rows);
    writer.write(changes);
    if (isCorrection)
        writer.writeRenamed(changes);
    return writer.holdsWhole();
}

template <class Points>
void keepOnly(const PointName& name, typename ChangedPoints<Points>::Changes& changes)
{
    std::erase_if(changes, [&](const auto& change) {
        return PointRecord<Points>::nameOf(
                   *(change.before != nullptr ? change.before : change.after)) != name;
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
    const auto hasManyPoints = [this] {
        return m_designChanges.size() + m_resultChanges.size() > HistoryTables::kMostItems;
    };
    if (only != nullptr && hasManyPoints()) {
        keepOnly<DesignPoints>(*only, m_designChanges);
        keepOnly<SurveyPoints>(*only, m_resultChanges);
    }
    EditContent content;
    const bool isLarge = hasManyPoints();
    const bool isCorrection = &edit.kind() == &EditKinds::kCorrectResult ||
                              (&edit.kind() == &EditKinds::kRenameResults && edit.points() == 1);
    content.holdsResults = writePoints<SurveyPoints>(m_resultChanges, isCorrection, content.items,
                                                     isLarge ? &content.resultRows : nullptr);
    content.holdsDesign = writePoints<DesignPoints>(m_designChanges, false, content.items,
                                                    isLarge ? &content.designRows : nullptr);
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
