#include "app/cli/CheckProject.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
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
    const auto result = project.manager().resultOf(*check);
    if (Outcome saving = project.save(); !saving.isDone())
        return saving;
    return print(*result, arguments.option(QStringLiteral("--out")));
}
