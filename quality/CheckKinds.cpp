#include "quality/CheckKinds.h"

#include "quality/QualityCheck.h"
#include "quality/QualityResultModel.h"

#include <QAbstractTableModel>

#include <algorithm>
#include <array>

const CheckKind kQualityCheck{
    "quality",
    [](const CheckedData& data, ProgressReporter& progress) {
        checkQuality(data.survey, data.parameters, progress, data.planeUnitM);
    },
    [](const CheckedData& data) {
        return makeQualityResultModel(
            describeQuality(data.survey, data.parameters, data.planeUnitM));
    }};

namespace {

// All checks: a new one is a line here.
constexpr std::array kKinds{&kQualityCheck};

} // namespace

const CheckKind* findCheckKind(std::string_view name)
{
    const auto* const found = std::find_if(
        kKinds.begin(), kKinds.end(), [&](const CheckKind* kind) { return name == kind->name; });
    return found == kKinds.end() ? nullptr : *found;
}

std::string checkNames(std::string_view separator)
{
    std::string names;
    for (const CheckKind* const kind : kKinds)
        names.append(names.empty() ? "" : separator).append(kind->name);
    return names;
}
