#include "project/ProjectLock.h"

#include "project/ProjectPlace.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {

QString inUse(const QLockFile& file)
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!file.getLockInfo(&process, &host, &program))
        return QCoreApplication::translate("ProjectStore",
                                           "The project is open in another program.");
    return QCoreApplication::translate(
               "ProjectStore", "The project is open in another program (%1, process %2 on %3).")
        .arg(program)
        .arg(process)
        .arg(host);
}

} // namespace

StoreResult ProjectLock::take(const ProjectPlace& place)
{
    release();
    auto file = std::make_unique<QLockFile>(place.database() + QStringLiteral(".lock"));
    file->setStaleLockTime(0); // a project may be open for days; only its owner's end frees it
    if (file->tryLock()) {
        m_file = std::move(file);
        return {true, {}};
    }
    if (file->error() == QLockFile::LockFailedError)
        return {false, inUse(*file)};
    if (!QFileInfo(place.folder).isDir())
        return {false,
                QCoreApplication::translate("ProjectStore", "The folder \"%1\" does not exist.")
                    .arg(place.folder)};
    return {true, QCoreApplication::translate(
                      "ProjectStore",
                      "The folder of this project cannot be written: changes cannot be saved.")};
}
