#pragma once

#include "project/edits/Edit.h"
#include "project/history/ChangedAcceptances.h"
#include "project/history/ChangedPoints.h"
#include "project/history/HistoryRows.h"

#include <map>

/// What the history keeps of one edit.
struct EditContent
{
    std::vector<HistoryItem> items;
    HistoryRows designRows; ///< the points of a large edit
    HistoryRows resultRows;
    bool holdsDesign = false; ///< whole points, in items or rows
    bool holdsResults = false;

    /// For content that is kept for long.
    void compress();
};

/// Goes through edits from the last to the first and tells what each has changed. An edit holds
/// only what was before it; what was after it is what a later edit holds, or the project.
class EditWalk final : private IEditReader
{
public:
    /// The data and the edits must stay as they are during the walk.
    explicit EditWalk(const EditedData& present)
        : m_present(present), m_design(present.design), m_results(present.survey),
          m_acceptances(present.acceptances)
    {
    }

    /// \param edit  the last one first, then the one before it, and so on
    /// \param only  of an edit with many points, this point alone; or null
    [[nodiscard]] EditContent contentOf(const Edit& edit, const PointName* only = nullptr);
    /// Goes past an edit without telling what it has changed.
    void pass(const Edit& edit);

private:
    void pointsChanged(const PointNames& names, const DesignPoints& before) override
    {
        m_design.walk(names, before, m_designChanges);
    }
    void pointsChanged(const PointNames& names, const SurveyPoints& before) override
    {
        m_results.walk(names, before, m_resultChanges);
    }
    void allChanged(const DesignPoints& before) override
    {
        m_isPassing ? m_design.passAll(before) : m_design.walkAll(before, m_designChanges);
    }
    void allChanged(const SurveyPoints& before) override
    {
        m_isPassing ? m_results.passAll(before) : m_results.walkAll(before, m_resultChanges);
    }
    void parametersChanged(EditScope which, const IDictionary& before,
                           const IDictionary& after) override;
    void acceptancesChanged(const std::vector<Acceptance>& problems,
                            const Acceptances& before) override;
    void hear(const Edit& edit);

    EditedData m_present;
    ChangedPoints<DesignPoints> m_design;
    ChangedPoints<SurveyPoints> m_results;
    std::map<EditScope, const IDictionary*> m_parameters; ///< as they were after the edit
    ChangedAcceptances m_acceptances;
    // Of the edit at hand:
    bool m_isPassing = false;
    ChangedPoints<DesignPoints>::Changes m_designChanges;
    ChangedPoints<SurveyPoints>::Changes m_resultChanges;
    std::vector<HistoryItem> m_parameterItems; ///< and those of accepted problems
};
