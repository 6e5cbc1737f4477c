#include "exchange/ui/FileImports.h"

namespace FileImports {

bool importDesignCsv(IDesktopHost& /*host*/, const QString& /*path*/)
{
    return false;
}

bool importSurveyCsv(IDesktopHost& /*host*/, const QString& /*path*/)
{
    return false;
}

bool importSurveyDatabase(IDesktopHost& /*host*/, const QString& /*path*/)
{
    return false;
}

} // namespace FileImports
