#include "project/SurveyDatabase.h"

#include "basalt_utilities/Dictionary.h"
#include "exchange/CsvFaults.h"
#include "exchange/FiledRows.h"
#include "exchange/ImportSummary.h"
#include "exchange/SameCoordSystem.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/Text.h"
#include "project/DBAdapter.h"
#include "project/ProjectLoader.h"
#include "project/SafetyCopy.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

namespace {

/// What a database holds that an import is for.
struct Content
{
    SurveyPoints points;
    basalt::Dictionary coordParameters;
    ProjectLoader::ResultRows rows;
};

QString translated(const char* text)
{
    return QCoreApplication::translate("SurveyDatabase", text);
}

/// Whether the newest changes may stand in a log beside the file. SQLite would make files of its
/// own there to read them.
bool hasLog(const QString& path)
{
    constexpr qint64 kFormatAt = 18; // in the header of the file
    QFile file(path);
    char format = 0;
    return file.open(QIODevice::ReadOnly) && file.seek(kFormatAt) && file.getChar(&format) &&
           format == 2;
}

/// Whether a write was cut off, which SQLite or we have to undo before the database can be read.
/// One that another program is writing now is locked, and has to be waited for.
bool needsRepair(const QString& path)
{
    if (hasLog(path))
        return true;
    DBAdapter database;
    const bool isOpen = database.open(lum::readOnlyConnection(path.toStdString()).c_str());
    const std::string reason = database.lastError();
    if (!isOpen && reason.find("readonly") != std::string::npos)
        return true; // there is a journal to play back
    const bool isInUse = reason.find("locked") != std::string::npos;
    return !isInUse && QFile::exists(path + QLatin1String(".saved"));
}

/// Copies the database with what was left beside it, and undoes in the copy what was cut off.
Outcome repairCopy(const QString& path, const QString& copy, ImportSummary& summary)
{
    for (const char* ending : {"", "-journal", "-wal", ".saved"}) {
        QFile file(path + QLatin1String(ending));
        if ((*ending == '\0' || file.exists()) && !file.copy(copy + QLatin1String(ending)))
            return cannotRead(file.fileName(), file.errorString());
        QFile::setPermissions(copy + QLatin1String(ending), QFile::ReadOwner | QFile::WriteOwner);
    }
    DBAdapter database;
    Outcome recovery = SafetyCopy(copy.toStdString()).recover(database);
    if (recovery.isDone() && !recovery.text().isEmpty())
        summary.remarks << translated(
            QT_TRANSLATE_NOOP("SurveyDatabase", "Saving that project was interrupted. The results "
                                                "are those that were saved before."));
    // SQLite undoes in the copy what was cut off, and takes over what stands in a log.
    if (recovery.isDone() && database.open(lum::databaseConnection(copy.toStdString()).c_str()))
        database.execute("pragma journal_mode=delete", 0);
    return recovery;
}

Outcome readContent(const QString& path, const SurveyPoints& standing, ProgressReporter& progress,
                    Content& content)
{
    DBAdapter database;
    return ProjectLoader(database, progress)
        .readResults(path.toStdString(), standing, content.points, content.coordParameters,
                     content.rows);
}

Outcome readRepaired(const QString& path, const SurveyPoints& standing, ProgressReporter& progress,
                     Content& content, ImportSummary& summary)
{
    if (!needsRepair(path))
        return readContent(path, standing, progress, content);
    const QTemporaryDir folder;
    const QString copy = folder.filePath(QStringLiteral("copy.db"));
    Outcome reading = repairCopy(path, copy, summary);
    if (reading.isDone())
        reading = readContent(copy, standing, progress, content);
    if (reading.isDone())
        return reading;
    return Outcome::failed(QString(reading.text()).replace(copy, path), reading.detail());
}

/// "org_lon (117, in the file 120)" of each parameter that differs, as far as there are few.
QString differences(const IDictionary& own, const IDictionary& other)
{
    constexpr std::size_t kMostShown = 6;
    const std::vector<std::string> keys = differingParameters(own, other);
    QStringList shown;
    for (std::size_t i = 0; i < std::min(keys.size(), kMostShown); ++i)
        shown << translated(QT_TRANSLATE_NOOP("SurveyDatabase", "%1 (%2, there %3)"))
                     .arg(lum::toQString(keys[i]), lum::toQString(own.text(keys[i], "0")),
                          lum::toQString(other.text(keys[i], "0")));
    if (keys.size() > kMostShown)
        shown << translated(QT_TRANSLATE_NOOP("SurveyDatabase", "%1 more"))
                     .arg(keys.size() - kMostShown);
    return shown.join(QLatin1String(", "));
}

void sumUp(const ProjectLoader::ResultRows& rows, ImportSummary& summary)
{
    for (const std::size_t place : rows.withoutNumber) {
        summary.linesRead = place;
        summary.note(summary.skipped, [] {
            return QCoreApplication::translate("SurveyCsv", "The point has no number.");
        });
    }
    summary.linesRead = rows.read;
    summary.pointsWithoutLine = rows.withoutLine;
}

/// Reads the database and adds its results.
Outcome addResults(const QString& path, const SurveyImport& import, ProgressReporter& progress,
                   ImportSummary& summary)
{
    Content content;
    Outcome reading = readRepaired(path, import.points, progress, content, summary);
    progress.hide();
    if (!reading.isDone())
        return reading;
    if (content.coordParameters.size() != 0 &&
        !sameCoordSystem(import.coordParameters, content.coordParameters)) {
        if (import.onOtherSystem)
            import.onOtherSystem(content.coordParameters, content.points);
        return Outcome::failed(
            translated(QT_TRANSLATE_NOOP("SurveyDatabase",
                                         "The results of \"%1\" were not imported: their "
                                         "coordinate system is not the project's. It differs in "
                                         "%2."))
                .arg(path, differences(import.coordParameters, content.coordParameters)));
    }
    sumUp(content.rows, summary);
    const std::size_t distinct = content.points.pointCount();
    summary.pointsRepeated = summary.linesRead - summary.skipped.count - distinct;
    tellReplaced(import.points, content.points, summary);
    summary.pointsReplaced = import.points.merge(std::move(content.points));
    summary.pointsNew = distinct - summary.pointsReplaced;
    return reading;
}

} // namespace

Outcome readSurveyDatabase(const QString& path, const SurveyImport& import,
                           ProgressReporter& progress, ImportSummary& summary)
{
    summary = {};
    summary.path = path;
    summary.isDatabase = true;
    Outcome reading = Outcome::done();
    try {
        reading = addResults(path, import, progress, summary);
    } catch (const std::exception& fault) {
        reading = readingBrokeOff(path, reasonOf(fault));
    }
    progress.finish();
    if (!reading.isDone()) {
        summary = {};
        summary.path = path;
        summary.isDatabase = true;
    }
    return reading;
}
