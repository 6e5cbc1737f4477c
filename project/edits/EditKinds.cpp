#include "project/edits/EditKinds.h"

#include "lum_sdk/GroupedNumber.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <string_view>

namespace EditKinds {

// clang-format off
const EditKind kImportDesign{"import_design", QT_TRANSLATE_NOOP("EditKinds", "Import %1 design points")};
const EditKind kImportSurvey{"import_survey", QT_TRANSLATE_NOOP("EditKinds", "Import %1 results")};
const EditKind kDeleteResults{"delete_results", QT_TRANSLATE_NOOP("EditKinds", "Delete %1 results")};
const EditKind kCorrectResult{"correct_result", QT_TRANSLATE_NOOP("EditKinds", "Correct a result")};
const EditKind kCorrectDesign{"correct_design", QT_TRANSLATE_NOOP("EditKinds", "Correct a design point")};
const EditKind kGenerateDesign{"generate_design", QT_TRANSLATE_NOOP("EditKinds", "Generate %1 design points")};
const EditKind kQualityLimits{"quality_limits", QT_TRANSLATE_NOOP("EditKinds", "Change quality limits")};
const EditKind kDesignParameters{"design_parameters", QT_TRANSLATE_NOOP("EditKinds", "Change design parameters")};
const EditKind kCoordSystem{"coord_system", QT_TRANSLATE_NOOP("EditKinds", "Change the coordinate system")};
const EditKind kRestore{"restore", QT_TRANSLATE_NOOP("EditKinds", "Restore %1 points")};
// clang-format on

const EditKind* find(std::string_view name)
{
    static constexpr std::array kAll{
        &kImportDesign,   &kImportSurvey,  &kDeleteResults,    &kCorrectResult, &kCorrectDesign,
        &kGenerateDesign, &kQualityLimits, &kDesignParameters, &kCoordSystem,   &kRestore};
    const auto* const found =
        std::ranges::find_if(kAll, [&](const EditKind* kind) { return name == kind->name; });
    return found == kAll.end() ? nullptr : *found;
}

} // namespace EditKinds

QString EditKind::titleFor(std::size_t points) const
{
    const QString text = QCoreApplication::translate("EditKinds", title);
    return text.contains(QLatin1String("%1")) ? text.arg(lum::groupedNumber(points)) : text;
}
