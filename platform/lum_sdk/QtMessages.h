#pragma once

#include <QtGlobal>

namespace lum {

/// Writes a message of Qt into the log, for `qInstallMessageHandler`: the user never sees them.
void logQtMessage(QtMsgType type, const QMessageLogContext& context, const QString& message);

} // namespace lum
