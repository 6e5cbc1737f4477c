#include "lum_sdk/SingleInstance.h"

#include "basalt_utilities/ILogger.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <unistd.h>

#include <memory>

namespace {

QString lockPath(const QString& program)
{
    // QStandardPaths would make a folder of its own, and warn, where XDG_RUNTIME_DIR is not set.
    const QString name = QFileInfo(program).fileName();
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (!folder.isEmpty())
        return folder + QStringLiteral("/%1.lock").arg(name);
    return QDir::tempPath() + QStringLiteral("/%1-%2.lock").arg(name).arg(::getuid());
}

} // namespace

bool instance_is_run(const QString& program, int hold)
{
    static std::unique_ptr<QLockFile> held; // to the end of the process
    if (held)
        return false;
    auto lock = std::make_unique<QLockFile>(lockPath(program));
    lock->setStaleLockTime(0); // a lock is stale when its process is gone, at any age
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
