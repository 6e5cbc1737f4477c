#include "lum_sdk/SingleInstance.h"

#include "basalt_utilities/ILogger.h"

#include <QDir>
#include <QFileInfo>
#include <QLockFile>

#include <unistd.h>

#include <memory>

namespace lum {

QString instanceFile(const QString& program, const QString& ending)
{
    // QStandardPaths would make a folder of its own, and warn, where XDG_RUNTIME_DIR is not set.
    const QString name = QFileInfo(program).fileName();
    const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    // After "sudo" it may be the folder of another user, whose window is none of ours.
    if (!folder.isEmpty() && QFileInfo(folder).ownerId() == ::getuid())
        return folder + QStringLiteral("/%1").arg(name) + ending;
    return QDir::tempPath() + QStringLiteral("/%1-%2").arg(name).arg(::getuid()) + ending;
}

} // namespace lum

bool instance_is_run(const QString& program, int hold)
{
    static std::unique_ptr<QLockFile> held; // to the end of the process
    if (held)
        return false;
    const QString path = lum::instanceFile(program, QStringLiteral(".lock"));
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(0); // a lock is stale when its process is gone, at any age
    if (!lock->tryLock()) {
        if (lock->error() == QLockFile::LockFailedError)
            return true;
        basalt::logWarning("Cannot tell whether the program runs already: no lock at " +
                           path.toStdString());
        return false;
    }
    if (hold != 0)
        held = std::move(lock);
    return false;
}
