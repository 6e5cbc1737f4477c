#include "project/DesignDatabase.h"

#include "exchange/CsvFaults.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/FileAside.h"
#include "lum_sdk/files/FileSync.h"
#include "project/DatabaseReason.h"
#include "project/DBAdapter.h"
#include "project/ProjectCreator.h"
#include "project/ProjectLock.h"
#include "project/ProjectPlace.h"
#include "project/TableRows.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

Outcome copyTemplate(const QString& to)
{
    QByteArray content;
    Outcome reading = ProjectCreator::readTemplate(ProjectCreator::kDatabase, content);
    if (!reading.isDone())
        return reading;
    QFile file(to);
    const bool isWritten = file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) &&
                           file.write(content) == content.size();
    return isWritten ? Outcome::done() : cannotWrite(to, file.errorString());
}

bool writeRows(IDBAdapter& database, const DesignChoice& choice, const IDictionary& coordParameters,
               ProgressReporter& progress)
{
    const QString caption = QCoreApplication::translate("DesignCsv", "Export Design Data");
    // Nobody knows the file yet: what is left of it after a failure goes.
    return database.execute("pragma journal_mode=off; pragma synchronous=off") &&
           database.beginTransaction() &&
           TableRows::addDesign(database, TableRows::linesOf(choice.points, choice.lines),
                                choice.onlyUnsurveyed, {progress, caption}) &&
           TableRows::addCoordinateSystem(database, coordParameters) && database.commit();
}

Outcome fill(const QString& path, const QString& target, const DesignChoice& choice,
             const IDictionary& coordParameters, ProgressReporter& progress)
{
    if (Outcome copying = copyTemplate(path); !copying.isDone())
        return copying;
    DBAdapter database;
    std::string reason;
    try {
        if (database.open(lum::databaseConnection(path.toStdString()).c_str()) &&
            writeRows(database, choice, coordParameters, progress))
            return Outcome::done();
        reason = database.lastError();
    } catch (const std::exception& fault) { // of either thread, such as no memory
        reason = fault.what();
    }
    return cannotWrite(target, databaseReason(reason));
}

/// The lock of the project whose database the target is, when there is one: a database that another
/// program works with is not to be replaced.
Outcome lockProjectAt(const QString& path, ProjectLock& lock)
{
    const QFileInfo target(path);
    const ProjectPlace place = ProjectPlace::in(target.absolutePath(), target.completeBaseName());
    const bool isProject =
        target.exists() && QFile::exists(place.file) && QFileInfo(place.database()) == target;
    const Outcome taken = isProject ? lock.take(place) : Outcome::done();
    return taken.isDone() ? Outcome::done() : cannotWrite(path, taken.text());
}

/// What SQLite and an interrupted save have left beside an old database would change the new one.
Outcome removeLeftovers(const QString& path)
{
    for (const char* ending : {"-journal", "-wal", "-shm", ".saved"}) {
        const std::string why = lum::removeFile(path.toStdString() + ending);
        if (!why.empty())
            return cannotWrite(path + QLatin1String(ending), QString::fromStdString(why));
    }
    return Outcome::done();
}

} // namespace

Outcome writeDesignDatabase(const QString& path, const DesignChoice& choice,
                            const IDictionary& coordParameters, ProgressReporter& progress)
{
    ProjectLock lock;
    if (Outcome locking = lockProjectAt(path, lock); !locking.isDone())
        return locking;
    lum::FileAside file(path);
    if (!file.fault().isEmpty())
        return cannotWrite(path, file.fault());
    Outcome writing = fill(file.path(), path, choice, coordParameters, progress);
    if (writing.isDone())
        writing = removeLeftovers(path);
    if (writing.isDone()) {
        if (const QString fault = file.commit(); !fault.isEmpty())
            writing = cannotWrite(path, fault);
    }
    progress.hide();
    return writing;
}
