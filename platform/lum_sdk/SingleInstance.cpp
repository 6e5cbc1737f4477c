#include "lum_sdk/SingleInstance.h"

#include "basalt_utilities/ILogger.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <memory>

namespace {

QString lockPath(const QString& program)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty())
        folder = QDir::tempPath();
    return folder + QStringLiteral("/") + QFileInfo(program).fileName() + QStringLiteral(".lock");
}

} // namespace

bool instance_is_run(const QString& program, int hold)
{
    static std::unique_ptr<QLockFile> held; // to the end of the process
    if (held)
        return false;
    auto lock = std::make_unique<QLockFile>(lockPath(program));
    lock->setStaleLockTime(0); // only a holder that is gone makes a lock stale, never its age
    if (!lock->tryLock()) {
        if (lock->error() == QLockFile::LockFailedError)
            return true;
        basalt::logWarning("Cannot tell whether the program runs already: no lock at " +
                           lockPath(program).toStdString());
        return false;
    }
    if (hold != 0)
        held = std::move(lock);
    return false;
}
