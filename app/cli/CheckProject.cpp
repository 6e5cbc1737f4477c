#include "app/cli/CheckProject.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "quality/CheckKinds.h"
#include "quality/ResultCsv.h"
#include "quality/ResultModel.h"

#include <cstdio>

namespace {

/// \param file standard output when it is empty
CliResult print(const QAbstractTableModel& result, const QString& file)
{
    if (file.isEmpty()) {
        formatResultCsv(result, result_role::kEnglish, [](std::string_view line) {
            std::fwrite(line.data(), 1, line.size(), stdout);
        });
        return {};
    }
    const Outcome outcome = writeResultCsv(file, result, result_role::kEnglish);
    return outcome.isDone() ? CliResult()
                            : CliResult::failed(QString::fromStdString(outcome.detail()));
}

} // namespace

CliResult checkProject(const CliArguments& arguments)
{
    const QString& name = arguments.places[1];
    const CheckKind* const check = findCheckKind(name.toStdString());
    if (check == nullptr)
        return CliResult::wrongUsage(QStringLiteral("there is no check \"%1\"; there is %2")
                                         .arg(name, QString::fromStdString(checkNames(", "))));
    CliProject project;
    QString fault = project.open(arguments.places[0], ProjectAccess::Change);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    project.manager().run(*check);
    const auto result = project.manager().resultOf(*check);
    fault = project.save();
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    return print(*result, arguments.option(QStringLiteral("--out")));
}
