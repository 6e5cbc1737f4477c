#include "project/ui/OpenProjectCommand.h"

#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectSession.h"

#include <QCoreApplication>

void OpenProjectCommand::execute()
{
    if (!ProjectSession::closeCurrent(host()))
        return;
    const QString file = FileDialog::getOpenFileName(
        host().dialogParent(), QCoreApplication::translate("OpenProjectCommand", "Open Project"),
        QStringLiteral("%1 file(*.%1)").arg(projectExtension()));
    if (!file.isEmpty())
        ProjectSession::openFile(host(), file);
}
