#include "app/cli/ImportFiles.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "basalt_utilities/ILogger.h"
#include "exchange/DesignCsvReader.h"
#include "exchange/ImportSummary.h"
#include "exchange/SurveyCsvReader.h"
#include "lum_sdk/events/ProgressReporter.h"

#include <cstdio>

namespace {

template <class Points>
using Read = Outcome (*)(const QString& path, Points& points, ProgressReporter& progress,
                         ImportSummary& summary);

template <class Points>
CliResult importFile(const CliArguments& arguments, Points& (DataProcessDataManager::*points)(),
                     Read<Points> read)
{
    const QString& file = arguments.places[1];
    if (!file.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive))
        return CliResult::wrongUsage(QStringLiteral("\"%1\" does not end in .csv").arg(file));
    CliProject project;
    QString fault = project.open(arguments.places[0], ProjectAccess::Change);
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    ProgressReporter progress(&project.events());
    ImportSummary summary;
    const Outcome outcome = read(file, (project.manager().*points)(), progress, summary);
    if (!outcome.isDone())
        return CliResult::failed(outcome.text());
    const QString text = summary.toText();
    basalt::logInfo(text.toStdString());
    fault = project.save();
    if (!fault.isEmpty())
        return CliResult::failed(fault);
    std::printf("%s\n", qUtf8Printable(text));
    return {};
}

} // namespace

CliResult importDesign(const CliArguments& arguments)
{
    return importFile<DesignPoints>(arguments, &DataProcessDataManager::designPoints,
                                    readDesignCsv);
}

CliResult importSurvey(const CliArguments& arguments)
{
    return importFile<SurveyPoints>(arguments, &DataProcessDataManager::surveyPoints,
                                    readSurveyCsv);
}
