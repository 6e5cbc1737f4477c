#include "design/DesignGenerator.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/IHost.h"
#include "project/DataProcessDataManager.h"
#include "project/edits/EditParts.h"
#include "project/history/HistoryWriter.h"
#include "project/LoggedOutcome.h"
#include "project/PointCorrection.h"
#include "project/PointRenaming.h"
#include "quality/QualityLimits.h"
#include "quality/RepeatChoice.h"

#include <QCoreApplication>

#include <algorithm>

// Edits: whatever changes points or parameters.

namespace {
Outcome noSuchPoint(const PointName& name)
{
    return Outcome::refused(
        QCoreApplication::translate("DataProcessDataManager",
                                    "Line %1 has no point %2 any more: nothing was changed.")
            .arg(QString::fromStdString(name.line), QString::fromStdString(name.point)));
}
} // namespace

EditedData DataProcessDataManager::editedData()
{
    return {m_design,
            m_survey,
            m_qualityParameters,
            m_designParameters,
            get_project_coord_transform().parameters(),
            [this](const IDictionary& parameters) { applyCoordSystem(parameters); },
            m_acceptances};
}

void DataProcessDataManager::setEditHandler(EditHandler handler)
{
    m_onEdit = std::move(handler);
}

int DataProcessDataManager::exchange(const std::shared_ptr<Edit>& edit, bool isTakenBack,
                                     Outcome* outcome)
{
    const bool wasChanged = isChanged();
    try {
        m_unsaved.makeRoom();
        edit->exchange(editedData());
        m_unsaved.add(edit, isTakenBack);
    } catch (const std::bad_alloc&) {
        return answered(
            Outcome::failed(QCoreApplication::translate(
                "DataProcessDataManager", "There is not enough memory: nothing was changed.")),
            outcome);
    }
    tellModified(wasChanged);
    return answered(Outcome::done(), outcome);
}

void DataProcessDataManager::make(const std::shared_ptr<Edit>& edit)
{
    m_unsaved.makeRoom();
    edit->exchange(editedData());
    keep(edit);
}

void DataProcessDataManager::keep(const std::shared_ptr<Edit>& edit)
{
    const bool wasChanged = isChanged();
    m_unsaved.add(edit, false);
    if (m_onEdit)
        m_onEdit(edit);
    tellModified(wasChanged);
}

void DataProcessDataManager::change(const EditKind& kind, EditScope which,
                                    const IDictionary& present, const IDictionary& wanted)
{
    if (dictionary_same(present, wanted))
        return;
    const auto edit = std::make_shared<Edit>(kind);
    edit->add(std::make_unique<Parameters>(which, basalt::Dictionary(wanted)));
    make(edit);
}

std::size_t DataProcessDataManager::deleteSurveyPoints(const std::vector<PointName>& points)
{
    return deleteResults(PointNames(points));
}

std::size_t DataProcessDataManager::deleteResults(PointNames&& names)
{
    const std::size_t before = m_survey.pointCount();
    const auto edit = std::make_shared<Edit>(EditKinds::kDeleteResults);
    edit->add(std::make_unique<SomePoints<SurveyPoints>>(std::move(names), SurveyPoints()));
    m_unsaved.makeRoom();
    edit->exchange(editedData());
    const std::size_t count = before - m_survey.pointCount();
    edit->setPoints(count);
    if (count != 0)
        keep(edit);
    return count;
}

std::size_t DataProcessDataManager::deleteSurveyLines(const QStringList& lines)
{
    PointNames names;
    for (const QString& number : lines) {
        const SurveyPoints::Line* const line = m_survey.findLine(number.toStdString());
        std::vector<std::string>& numbers = names.of(number.toStdString());
        for (auto point = line == nullptr ? SurveyPoints::Line::const_iterator() : line->begin();
             line != nullptr && point != line->end(); ++point)
            numbers.push_back(point->pointNumber);
    }
    return deleteResults(std::move(names));
}

int DataProcessDataManager::correctSurveyPoint(const PointName& name,
                                               const SurveyCorrection& correction, Outcome* outcome,
                                               PointName* filedAs)
{
    if (m_survey.find(name.line, name.point) == nullptr)
        return answered(noSuchPoint(name), outcome);
    if (const auto fault = faultOf(correction))
        return answered(Outcome::refused(fault->text), outcome);
    PointName place = name;
    SurveyPoints other = corrected(m_survey, place, correction);
    if (!other.empty()) {
        const auto edit = std::make_shared<Edit>(EditKinds::kCorrectResult, 1);
        edit->add(std::make_unique<CorrectedPoint<SurveyPoints>>(name, place, std::move(other)));
        make(edit);
    }
    if (filedAs != nullptr)
        *filedAs = std::move(place);
    return answered(Outcome::done(), outcome);
}

int DataProcessDataManager::renameResults(const std::vector<Renaming>& renamings, Outcome* outcome)
{
    RenamedPoints renamed;
    const Outcome renaming =
        ::renameResults(m_design, m_survey, qualityParameter(m_qualityParameters, kResurveyCode),
                        renamings, renamed);
    if (renaming.isDone() && !renamings.empty()) {
        const auto edit = std::make_shared<Edit>(EditKinds::kRenameResults, renamings.size());
        edit->add(std::make_unique<SomePoints<SurveyPoints>>(std::move(renamed.names),
                                                             std::move(renamed.results)));
        make(edit);
    }
    return answered(renaming, outcome);
}

int DataProcessDataManager::correctDesignPoint(const PointName& name,
                                               const DesignCorrection& correction, Outcome* outcome)
{
    const DesignPoint* const point = m_design.find(name.line, name.point);
    if (point == nullptr)
        return answered(noSuchPoint(name), outcome);
    if (const auto fault = faultOf(correction))
        return answered(Outcome::refused(fault->text), outcome);
    DesignPoints other = corrected(*point, correction);
    if (!other.empty()) {
        const auto edit = std::make_shared<Edit>(EditKinds::kCorrectDesign, 1);
        edit->add(std::make_unique<CorrectedPoint<DesignPoints>>(name, name, std::move(other)));
        make(edit);
    }
    return answered(Outcome::done(), outcome);
}

std::size_t DataProcessDataManager::restorePoints(HistoryPoints&& points)
{
    const std::size_t count = points.design.pointCount() + points.results.pointCount();
    if (count == 0)
        return 0;
    const auto edit = std::make_shared<Edit>(EditKinds::kRestore, count);
    const auto add = [&]<class Points>(Points part, PointNames names = {}) {
        names.add(part.names());
        edit->add(std::make_unique<SomePoints<Points>>(std::move(names), std::move(part)));
    };
    if (!points.design.empty())
        add(std::move(points.design));
    if (!points.results.empty())
        add(std::move(points.results), std::move(points.leaving));
    make(edit);
    if ((edit->scope() & kSurveyScope) != 0)
        recomputeSeaHeights();
    return count;
}

std::size_t DataProcessDataManager::accept(std::vector<Acceptance> problems)
{
    std::erase_if(problems, [this](const Acceptance& problem) {
        const Acceptance* const present = m_acceptances.find(problem);
        return present != nullptr && present->reason == problem.reason;
    });
    const QString person = HistoryAuthor::current().person;
    const QDateTime now = QDateTime::currentDateTimeUtc();
    Acceptances accepted;
    for (const Acceptance& problem : problems) {
        Acceptance acceptance = problem;
        acceptance.person = person;
        acceptance.time = now;
        accepted.set(std::move(acceptance));
    }
    const std::size_t count =
        changeAcceptances(EditKinds::kAcceptProblems, problems, std::move(accepted));
    const auto hasFirstReason = [&](const Acceptance& problem) {
        return problem.reason == problems.front().reason;
    };
    if (count != 0 && std::ranges::all_of(problems, hasFirstReason))
        m_unsaved.setReason(m_unsaved.entries().size() - 1, problems.front().reason);
    return count;
}

std::size_t DataProcessDataManager::endAcceptances(std::vector<Acceptance> problems)
{
    std::erase_if(problems, [this](const Acceptance& problem) {
        return m_acceptances.find(problem) == nullptr;
    });
    return changeAcceptances(EditKinds::kEndAcceptances, problems, {});
}

std::size_t DataProcessDataManager::changeAcceptances(const EditKind& kind,
                                                      const std::vector<Acceptance>& problems,
                                                      Acceptances&& other)
{
    auto part = std::make_unique<AcceptedProblems>(problems, std::move(other));
    const std::size_t count = part->problems();
    if (count == 0)
        return 0;
    const auto edit = std::make_shared<Edit>(kind, count);
    edit->add(std::move(part));
    make(edit);
    return count;
}

std::vector<RepeatedPoint> DataProcessDataManager::repeatedPoints() const
{
    return ::repeatedPoints(m_design, m_survey,
                            qualityParameter(m_qualityParameters, kResurveyCode),
                            lum::lengthUnitOf(get_project_coord_transform().parameters()).metres);
}

void DataProcessDataManager::resolveRepeats(ResolvedRepeats&& resolved)
{
    if (resolved.results.empty())
        return;
    const auto edit =
        std::make_shared<Edit>(EditKinds::kResolveRepeats, resolved.results.pointCount());
    edit->add(std::make_unique<SomePoints<SurveyPoints>>(std::move(resolved.names),
                                                         std::move(resolved.results)));
    make(edit);
}

int DataProcessDataManager::generateDesign(DesignLines lines, const IDictionary& parameters,
                                           Outcome* outcome)
{
    ProgressReporter progress(&m_host.eventManager());
    const auto edit = std::make_shared<Edit>(EditKinds::kGenerateDesign);
    auto replaced = std::make_unique<AllPoints<DesignPoints>>();
    DesignPoints& before = replaced->other();
    auto changed =
        std::make_unique<Parameters>(kDesignParameterScope, basalt::Dictionary(parameters));
    EditPart& wanted = *changed;
    edit->add(std::move(replaced));
    edit->add(std::move(changed));
    m_unsaved.makeRoom();
    const Outcome generating = ::generateDesign(parameters, lines, m_design, progress, &before);
    if (generating.isDone()) {
        wanted.exchange(editedData());
        edit->setPoints(m_design.pointCount());
        keep(edit);
    }
    return answered(generating, outcome);
}

void DataProcessDataManager::setQualityParameters(const IDictionary& parameters)
{
    change(EditKinds::kQualityLimits, kQualityScope, m_qualityParameters, parameters);
}

void DataProcessDataManager::setDesignParameters(const IDictionary& parameters)
{
    change(EditKinds::kDesignParameters, kDesignParameterScope, m_designParameters, parameters);
}

void DataProcessDataManager::setCoordSystem(const IDictionary& parameters)
{
    const IDictionary& present = get_project_coord_transform().parameters();
    if (dictionary_same(present, parameters)) // its geoid may be another one now
        applyCoordSystem(basalt::Dictionary(parameters));
    else
        change(EditKinds::kCoordSystem, kCoordSystemScope, present, parameters);
}
