#include "exchange/ui/ExportCommands.h"

#include "exchange/ui/FileExports.h"

namespace {

FileExports::Form formOf(const IDictionary& parameters)
{
    const std::string_view form = parameters.text("form");
    if (form == "db")
        return FileExports::Form::Database;
    return form == "kml" ? FileExports::Form::Kml : FileExports::Form::Csv;
}

} // namespace

void ExportDesignCommand::execute()
{
    FileExports::exportDesign(host(), formOf(parameters()), FileExports::allDesignLines(),
                              parameters().integer("unsurveyed") != 0);
}

void ExportSurveyCommand::execute()
{
    FileExports::exportSurvey(host(), formOf(parameters()), FileExports::allSurveyLines());
}
