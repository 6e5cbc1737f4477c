#include "lum_sdk/QtMessages.h"

#include "basalt_utilities/ILogger.h"

#include <QString>

namespace lum {

void logQtMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    const std::string line = "Qt: " + message.toStdString();
    if (type == QtCriticalMsg || type == QtFatalMsg)
        basalt::logError(line);
    else
        basalt::logDebug(line); // the message window hides debug lines
}

} // namespace lum
