#include "project/SafetyCopy.h"

#include "basalt_utilities/Files.h"
#include "basalt_utilities/ILogger.h"
#include "lum_sdk/database/IDBAdapter.h"
#include "lum_sdk/files/FileSync.h"
#include "project/DatabaseReason.h"

#include <QCoreApplication>

namespace {

QString interrupted()
{
    return QCoreApplication::translate(
        "ProjectStore", "Saving this project was interrupted. It is as it was last saved.");
}

bool isDamage(const std::string& reason)
{
    return reason.find("malformed") != std::string::npos ||
           reason.find("not a database") != std::string::npos;
}

} // namespace

SafetyCopy::SafetyCopy(const std::string& database)
    : m_database(database), m_copy(database + ".saved")
{
}

bool SafetyCopy::make(IDBAdapter& database) const
{
    return database.backup(m_copy.c_str());
}

void SafetyCopy::drop() const
{
    // The removal of the journal must be on the disk before the copy is removed. The folder is
    // synced, not the database: opening and closing its file here would end SQLite's locks on it.
    lum::syncFolderOf(m_database);
    const std::string why = lum::removeFile(m_copy);
    if (!why.empty())
        basalt::logError("Cannot remove \"" + m_copy + "\": " + why);
}

Outcome SafetyCopy::recover(IDBAdapter& database) const
{
    database.close();
    if (!file_system_check_file(m_copy))
        return Outcome::done();
    if (!file_system_check_file(m_database))
        return restore();
    // Exclusively, since the copy may also belong to a save that another program is making now.
    const bool isOpen =
        database.open((lum::databaseConnection(m_database) + ",exclusive=1").c_str());
    const std::string reason = database.lastError();
    const bool isMarked = isOpen && database.tableExists("SaveUnderWay");
    // The other program may have removed its copy while this one waited for the database.
    const bool isLeft = isOpen && !isMarked && file_system_check_file(m_copy);
    if (isLeft)
        drop(); // while the lock keeps others from making a new one
    database.close();
    if (isMarked || isDamage(reason))
        return restore();
    if (isOpen)
        return Outcome::done(isLeft ? interrupted() : QString());
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore",
                                    "An interrupted save of \"%1\" cannot be undone: %2.")
            .arg(QString::fromStdString(m_database), databaseReason(reason)));
}

Outcome SafetyCopy::restore() const
{
    // SQLite would play a journal of the old file back into the new one.
    std::string why = lum::removeFile(m_database + "-journal");
    if (why.empty())
        why = lum::renameFile(m_copy, m_database);
    if (why.empty()) {
        basalt::logWarning("\"" + m_database + "\" was restored after an interrupted save");
        return Outcome::done(interrupted());
    }
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore",
                                    "Saving was interrupted; the project as it was before "
                                    "stands in \"%1\", which cannot be put in its place: %2.")
            .arg(QString::fromStdString(m_copy), QString::fromStdString(why)));
}
