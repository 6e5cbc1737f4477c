#include "map/ui/DrawExcitationCommand.h"

#include "protocol/StatusKeys.h"

#include <QCoreApplication>

DrawExcitationCommand::DrawExcitationCommand(const char* config, IDesktopHost* host)
    : LineToggleCommand(config, host, status::kShowSourceLines)
{
}

QString DrawExcitationCommand::caption() const
{
    return isChecked() ? QCoreApplication::translate("DrawExcitationCommand", "not show s line")
                       : QCoreApplication::translate("DrawExcitationCommand", "show s line");
}
