#include "project/edits/EditKinds.h"

#include "lum_sdk/GroupedNumber.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace EditKinds {

// clang-format off
const EditKind kImportDesign{"import_design", QT_TRANSLATE_NOOP("EditKinds", "Import %1 design points"), QT_TRANSLATE_NOOP("EditKinds", "Import a design point"), QT_TRANSLATE_NOOP("EditKinds", "Imports of design points")};
const EditKind kImportSurvey{"import_survey", QT_TRANSLATE_NOOP("EditKinds", "Import %1 results"), QT_TRANSLATE_NOOP("EditKinds", "Import a result"), QT_TRANSLATE_NOOP("EditKinds", "Imports of results")};
const EditKind kDeleteResults{"delete_results", QT_TRANSLATE_NOOP("EditKinds", "Delete %1 results"), QT_TRANSLATE_NOOP("EditKinds", "Delete a result"), QT_TRANSLATE_NOOP("EditKinds", "Deletions of results")};
const EditKind kCorrectResult{"correct_result", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Correct a result"), QT_TRANSLATE_NOOP("EditKinds", "Corrections of results")};
const EditKind kCorrectDesign{"correct_design", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Correct a design point"), QT_TRANSLATE_NOOP("EditKinds", "Corrections of design points")};
const EditKind kRenameResults{"rename_results", QT_TRANSLATE_NOOP("EditKinds", "Rename %1 results"), QT_TRANSLATE_NOOP("EditKinds", "Rename a result"), QT_TRANSLATE_NOOP("EditKinds", "New names of results")};
const EditKind kGenerateDesign{"generate_design", QT_TRANSLATE_NOOP("EditKinds", "Generate %1 design points"), QT_TRANSLATE_NOOP("EditKinds", "Generate a design point"), QT_TRANSLATE_NOOP("EditKinds", "Generated designs")};
const EditKind kQualityLimits{"quality_limits", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Change quality limits"), QT_TRANSLATE_NOOP("EditKinds", "Quality limits")};
const EditKind kDesignParameters{"design_parameters", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Change design parameters"), QT_TRANSLATE_NOOP("EditKinds", "Design parameters")};
const EditKind kCoordSystem{"coord_system", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Change the coordinate system"), QT_TRANSLATE_NOOP("EditKinds", "Coordinate system")};
const EditKind kRestore{"restore", QT_TRANSLATE_NOOP("EditKinds", "Restore %1 points"), QT_TRANSLATE_NOOP("EditKinds", "Restore a point"), QT_TRANSLATE_NOOP("EditKinds", "Restored points")};
const EditKind kAcceptProblems{"accept_problems", QT_TRANSLATE_NOOP("EditKinds", "Accept %1 problems"), QT_TRANSLATE_NOOP("EditKinds", "Accept a problem"), QT_TRANSLATE_NOOP("EditKinds", "Accepted problems")};
const EditKind kEndAcceptances{"end_acceptances", QT_TRANSLATE_NOOP("EditKinds", "Open %1 problems again"), QT_TRANSLATE_NOOP("EditKinds", "Open a problem again"), QT_TRANSLATE_NOOP("EditKinds", "Problems opened again")};
const EditKind kResolveRepeats{"resolve_repeats", QT_TRANSLATE_NOOP("EditKinds", "Resolve %1 repeated points"), QT_TRANSLATE_NOOP("EditKinds", "Resolve a repeated point"), QT_TRANSLATE_NOOP("EditKinds", "Resolved repeats")};
// clang-format on

std::span<const EditKind* const> all()
{
    static constexpr std::array kAll{
        &kImportDesign,  &kImportSurvey,   &kDeleteResults,  &kCorrectResult,    &kCorrectDesign,
        &kRenameResults, &kGenerateDesign, &kQualityLimits,  &kDesignParameters, &kCoordSystem,
        &kRestore,       &kResolveRepeats, &kAcceptProblems, &kEndAcceptances};
    return kAll;
}

const EditKind* find(std::string_view name)
{
    const auto found =
        std::ranges::find_if(all(), [&](const EditKind* kind) { return name == kind->name; });
    return found == all().end() ? nullptr : *found;
}

} // namespace EditKinds

QString EditKind::titleFor(std::size_t points) const
{
    if (points == 1 || title == nullptr)
        return QCoreApplication::translate("EditKinds", one);
    return QCoreApplication::translate("EditKinds", title).arg(lum::groupedNumber(points));
}

QString EditKind::pluralTitle() const
{
    return QCoreApplication::translate("EditKinds", plural);
}
