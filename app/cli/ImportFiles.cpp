#include "app/cli/ImportFiles.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "exchange/ImportSummary.h"

#include <cstdio>

namespace {

using Import = int (DataProcessDataManager::*)(const QString& path, Outcome* outcome,
                                               ImportSummary* counts);

bool endsIn(const QString& file, const char* ending)
{
    return file.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
}

Outcome importFile(const CliArguments& arguments, Import import)
{
    const QString& file = arguments.places[1];
    CliProject project;
    ImportSummary counts;
    Outcome outcome = project.open(arguments.places[0], ProjectAccess::Change);
    if (!outcome.isDone() || (project.manager().*import)(file, &outcome, &counts) == 0)
        return outcome;
    if (!counts.hasPoints())
        return Outcome::failed(
            QStringLiteral("No point was imported, the project is unchanged.\n") + outcome.text());
    if (Outcome saving = project.save(); !saving.isDone())
        return saving;
    std::printf("%s\n", qUtf8Printable(outcome.text()));
    return outcome;
}

} // namespace

Outcome importDesign(const CliArguments& arguments)
{
    const QString& file = arguments.places[1];
    if (!endsIn(file, ".csv"))
        return Outcome::refused(QStringLiteral("\"%1\" does not end in .csv").arg(file));
    return importFile(arguments, &DataProcessDataManager::importDesignCsv);
}

Outcome importSurvey(const CliArguments& arguments)
{
    const QString& file = arguments.places[1];
    if (endsIn(file, ".db"))
        return importFile(arguments, &DataProcessDataManager::importSurveyDatabase);
    if (endsIn(file, ".csv"))
        return importFile(arguments, &DataProcessDataManager::importSurveyCsv);
    return Outcome::refused(QStringLiteral("\"%1\" ends neither in .csv nor in .db").arg(file));
}
