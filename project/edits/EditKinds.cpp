#include "project/edits/EditKinds.h"

#include "lum_sdk/GroupedNumber.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <string_view>

namespace EditKinds {

// clang-format off
const EditKind kImportDesign{"import_design", QT_TRANSLATE_NOOP("EditKinds", "Import %1 design points"), QT_TRANSLATE_NOOP("EditKinds", "Import a design point")};
const EditKind kImportSurvey{"import_survey", QT_TRANSLATE_NOOP("EditKinds", "Import %1 results"), QT_TRANSLATE_NOOP("EditKinds", "Import a result")};
const EditKind kDeleteResults{"delete_results", QT_TRANSLATE_NOOP("EditKinds", "Delete %1 results"), QT_TRANSLATE_NOOP("EditKinds", "Delete a result")};
const EditKind kCorrectResult{"correct_result", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Correct a result")};
const EditKind kCorrectDesign{"correct_design", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Correct a design point")};
const EditKind kGenerateDesign{"generate_design", QT_TRANSLATE_NOOP("EditKinds", "Generate %1 design points"), QT_TRANSLATE_NOOP("EditKinds", "Generate a design point")};
const EditKind kQualityLimits{"quality_limits", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Change quality limits")};
const EditKind kDesignParameters{"design_parameters", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Change design parameters")};
const EditKind kCoordSystem{"coord_system", nullptr, QT_TRANSLATE_NOOP("EditKinds", "Change the coordinate system")};
const EditKind kRestore{"restore", QT_TRANSLATE_NOOP("EditKinds", "Restore %1 points"), QT_TRANSLATE_NOOP("EditKinds", "Restore a point")};
const EditKind kAcceptProblems{"accept_problems", QT_TRANSLATE_NOOP("EditKinds", "Accept %1 problems"), QT_TRANSLATE_NOOP("EditKinds", "Accept a problem")};
const EditKind kEndAcceptances{"end_acceptances", QT_TRANSLATE_NOOP("EditKinds", "List %1 accepted problems again"), QT_TRANSLATE_NOOP("EditKinds", "List an accepted problem again")};
// clang-format on

const EditKind* find(std::string_view name)
{
    static constexpr std::array kAll{&kImportDesign,  &kImportSurvey,     &kDeleteResults,
                                     &kCorrectResult, &kCorrectDesign,    &kGenerateDesign,
                                     &kQualityLimits, &kDesignParameters, &kCoordSystem,
                                     &kRestore,       &kAcceptProblems,   &kEndAcceptances};
    const auto* const found =
        std::ranges::find_if(kAll, [&](const EditKind* kind) { return name == kind->name; });
    return found == kAll.end() ? nullptr : *found;
}

} // namespace EditKinds

QString EditKind::titleFor(std::size_t points) const
{
    if (points == 1 || title == nullptr)
        return QCoreApplication::translate("EditKinds", one);
    return QCoreApplication::translate("EditKinds", title).arg(lum::groupedNumber(points));
}
