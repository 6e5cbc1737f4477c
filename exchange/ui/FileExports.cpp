#include "exchange/ui/FileExports.h"

namespace FileExports {

void exportDesign(IDesktopHost& /*host*/, Form /*form*/, const QStringList& /*lines*/,
                  bool /*onlyUnsurveyed*/)
{
}

void exportSurvey(IDesktopHost& /*host*/, Form /*form*/, const QStringList& /*lines*/) {}

void offerToOpen(IDesktopHost& /*host*/, const QString& /*path*/) {}

} // namespace FileExports
