#include "exchange/ui/ImportCommand.h"

#include "basalt_utilities/ILogger.h"
#include "exchange/ui/FileImports.h"

#include <string>

void ImportCommand::execute()
{
    const std::string kind(parameters().text("kind"));
    if (kind == "design-csv")
        FileImports::importDesignCsv(host());
    else if (kind == "survey-csv")
        FileImports::importSurveyCsv(host());
    else if (kind == "survey-db")
        FileImports::importSurveyDatabase(host());
    else
        basalt::logError("There is no import of the kind \"" + kind + "\".");
}
