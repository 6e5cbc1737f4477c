#include "project/ProjectLock.h"

#include "project/ProjectPlace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSysInfo>

namespace {

QString inUse(const QLockFile& file, const QString& path)
{
    qint64 process = 0;
    QString host;
    QString program;
    if (!file.getLockInfo(&process, &host, &program))
        return QCoreApplication::translate("ProjectStore",
                                           "The project is open in another program.");
    QString owner =
        QCoreApplication::translate(
            "ProjectStore", "The project is open in another program (%1, process %2 on %3).")
            .arg(program, QString::number(process), host);
    if (host == QSysInfo::machineHostName())
        return owner;
    // This computer cannot see whether a program on another one still runs.
    return owner + QLatin1Char(' ') +
           QCoreApplication::translate("ProjectStore",
                                       "If it is not, remove the file \"%1\" and try again.")
               .arg(QDir::toNativeSeparators(path));
}

Outcome noFolder(const ProjectPlace& place)
{
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore", "The folder \"%1\" does not exist.")
            .arg(QDir::toNativeSeparators(place.folder)));
}

/// Why the lock cannot be written, although no other program holds it.
QString notWritten(const QLockFile& file, const QString& path)
{
    if (file.error() == QLockFile::PermissionError)
        return QCoreApplication::translate(
            "ProjectStore",
            "The folder of this project cannot be written: changes cannot be saved.");
    return QCoreApplication::translate(
               "ProjectStore", "The file \"%1\" cannot be written, perhaps because the disk is "
                               "full: changes cannot be saved as long as that is so.")
        .arg(QDir::toNativeSeparators(path));
}

} // namespace

Outcome ProjectLock::take(const ProjectPlace& place)
{
    release();
    m_lookedAt = QDateTime();
    const QString path = place.database() + QStringLiteral(".lock");
    auto file = std::make_unique<QLockFile>(path);
    file->setStaleLockTime(0); // a project may be open for days: age does not make a lock stale
    if (file->tryLock()) {
        m_file = std::move(file);
        return Outcome::done();
    }
    if (file->error() == QLockFile::LockFailedError)
        return Outcome::failed(inUse(*file, path));
    if (!QFileInfo(place.folder).isDir())
        return noFolder(place);
    m_lookedAt = QFileInfo(place.database()).lastModified();
    return Outcome::done(notWritten(*file, path));
}

Outcome ProjectLock::ensure(const ProjectPlace& place)
{
    if (!QFileInfo(place.folder).isDir())
        return noFolder(place);
    if (m_file)
        return Outcome::done();
    const QDateTime before = m_lookedAt;
    const Outcome taken = take(place);
    const bool isChanged = before.isValid() && QFileInfo(place.database()).lastModified() != before;
    if (isChanged)
        release();
    if (m_file)
        return Outcome::done();
    m_lookedAt = before;
    if (!isChanged)
        return Outcome::failed(taken.text());
    return Outcome::failed(QCoreApplication::translate(
        "ProjectStore",
        "Another program has changed the project since it was opened here without a lock."));
}
