#include "app/cli/ImportFiles.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "exchange/ImportSummary.h"

#include <cstdio>

namespace {

using Import = int (DataProcessDataManager::*)(const QString& path, ImportSummary* summary);

CliResult importFile(const CliArguments& arguments, Import import)
{
    const QString& file = arguments.places[1];
    if (!file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        return CliResult::wrongUsage(QStringLiteral("\"%1\" does not end in .csv").arg(file));
    CliProject project;
    QString fault = project.open(arguments.places[0], ProjectAccess::Change);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    ImportSummary summary;
    if ((project.manager().*import)(file, &summary) == 0)
        return CliResult::failed(summary.toText());
    fault = project.save();
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    std::printf("%s\n", qUtf8Printable(summary.toText()));
    return {};
}

} // namespace

CliResult importDesign(const CliArguments& arguments)
{
    return importFile(arguments, &DataProcessDataManager::importDesignCsv);
}

CliResult importSurvey(const CliArguments& arguments)
{
    return importFile(arguments, &DataProcessDataManager::importSurveyCsv);
}
