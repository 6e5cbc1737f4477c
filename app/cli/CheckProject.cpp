#include "app/cli/CheckProject.h"

#include "app/cli/CliArguments.h"
#include "app/cli/CliProject.h"
#include "project/OwnFile.h"
#include "protocol/Outcome.h"
#include "quality/CheckKinds.h"
#include "quality/ResultCsv.h"

#include <cstdio>

namespace {

/// \param file standard output when it is empty
Outcome print(const QAbstractTableModel& result, const QString& file)
{
    if (file.isEmpty()) {
        formatResultCsv(result, ResultCsv::ForScripts, [](std::string_view line) {
            std::fwrite(line.data(), 1, line.size(), stdout);
        });
        return Outcome::done();
    }
    const Outcome outcome = writeResultCsv(file, result, ResultCsv::ForScripts);
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
    const bool writes = check->run != nullptr;
    CliProject project;
    if (Outcome opening =
            project.open(arguments.places[0], writes ? ProjectAccess::Change : ProjectAccess::Look);
        !opening.isDone())
        return opening;
    const QString file = arguments.option(QStringLiteral("--out"));
    if (Outcome ownFile = checkNotOwn(project.place(), file); !ownFile.isDone())
        return ownFile;
    project.manager().run(*check);
    const CheckResult result = project.manager().resultOf(*check);
    if (const QString note = unitNoteOf(*check); !note.isEmpty())
        std::fprintf(stderr, "%s\n", note.toUtf8().constData());
    if (writes) {
        if (Outcome saving = project.save(); !saving.isDone())
            return saving;
    }
    Outcome printing = print(*result.rows, file);
    if (printing.isDone() && !file.isEmpty())
        std::printf("%s.\n", result.finding.toUtf8().constData());
    return printing;
}
