#include "map/ui/DrawReceiverCommand.h"

#include "protocol/StatusKeys.h"

#include <QCoreApplication>

DrawReceiverCommand::DrawReceiverCommand(const char* config, IDesktopHost* host)
    : LineToggleCommand(config, host, status::kShowReceiverLines)
{
}

QString DrawReceiverCommand::caption() const
{
    return isChecked() ? QCoreApplication::translate("DrawReceiverCommand", "not show r line")
                       : QCoreApplication::translate("DrawReceiverCommand", "show r line");
}
