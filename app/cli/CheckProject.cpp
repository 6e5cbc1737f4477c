#include "app/cli/CheckProject.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "protocol/Outcome.h"
#include "quality/CheckKinds.h"
#include "quality/ResultCsv.h"
#include "quality/ResultModel.h"

#include <cstdio>

namespace {

/// \param file standard output when it is empty
Outcome print(const QAbstractTableModel& result, const QString& file)
{
    if (file.isEmpty()) {
        formatResultCsv(result, result_role::kEnglish, [](std::string_view line) {
            std::fwrite(line.data(), 1, line.size(), stdout);
        });
        return Outcome::done();
    }
    const Outcome outcome = writeResultCsv(file, result, result_role::kEnglish);
    return outcome.isDone() ? Outcome::done()
                            : Outcome::failed(QString::fromStdString(outcome.detail()));
}

/// Says in which unit the lengths are, where it is not that of the coordinates.
void tellUnit()
{
    const lum::LengthUnit unit = lum::lengthUnitOf(get_project_coord_transform().parameters());
    if (!lum::isMetre(unit))
        std::fprintf(stderr,
                     "Lengths are in metres; coordinates and line deviations are in another unit: "
                     "%s.\n",
                     unit.name.c_str());
}

} // namespace

Outcome checkProject(const CliArguments& arguments)
{
    const QString& name = arguments.places[1];
    const CheckKind* const check = findCheckKind(name.toStdString());
    if (check == nullptr)
        return Outcome::refused(QStringLiteral("there is no check \"%1\"; there is %2")
                                    .arg(name, QString::fromStdString(checkNames(", "))));
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Change);
        !opening.isDone())
        return opening;
    project.manager().run(*check);
    tellUnit();
    const auto result = project.manager().resultOf(*check);
    if (Outcome saving = project.save(); !saving.isDone())
        return saving;
    return print(*result, arguments.option(QStringLiteral("--out")));
}
