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

#include <optional>

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
Outcome repairCopy(const QString& path, const QString& copy, QStringList& remarks)
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
        remarks << translated(QT_TRANSLATE_NOOP("SurveyDatabase",
                                                "Saving that project was interrupted. The results "
                                                "are those that were saved before."));
    // SQLite undoes in the copy what was cut off, and takes over what stands in a log.
    if (recovery.isDone() && database.open(lum::databaseConnection(copy.toStdString()).c_str()))
        database.execute("pragma journal_mode=delete", 0);
    return recovery;
}

/// The file that is read: the database, or for the time of this object a copy of it in which is
/// undone what was cut off.
class Source
{
public:
    explicit Source(const QString& path) : m_path(path), m_file(path) {}

    Outcome prepare(QStringList& remarks)
    {
        if (!needsRepair(m_path))
            return Outcome::done();
        m_folder.emplace();
        m_file = m_folder->filePath(QStringLiteral("copy.db"));
        return named(repairCopy(m_path, m_file, remarks));
    }

    /// \param read an operation of ProjectLoader
    template <class Read>
    Outcome read(ProgressReporter& progress, Read read) const
    {
        DBAdapter database;
        ProjectLoader loader(database, progress);
        return named(read(loader, m_file.toStdString()));
    }

private:
    /// A failure tells of the database, not of its copy.
    [[nodiscard]] Outcome named(const Outcome& reading) const
    {
        return reading.isDone() ? reading
                                : Outcome::failed(QString(reading.text()).replace(m_file, m_path),
                                                  reading.detail());
    }

    QString m_path;
    QString m_file;
    std::optional<QTemporaryDir> m_folder;
};

/// "org_lon (117, there 120)" of each parameter that differs, as far as there are few.
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

bool isOther(const SurveyImport& import, const IDictionary& coordParameters)
{
    return coordParameters.size() != 0 && !sameCoordSystem(import.coordParameters, coordParameters);
}

/// \param isTold the handler has told the user
Outcome notImported(const QString& path, const SurveyImport& import,
                    const IDictionary& coordParameters, bool isTold)
{
    const QString reason =
        translated(QT_TRANSLATE_NOOP("SurveyDatabase",
                                     "The results of \"%1\" were not imported: their "
                                     "coordinate system is not the project's. It differs in "
                                     "%2."))
            .arg(path, differences(import.coordParameters, coordParameters));
    return Outcome::failed(isTold ? QString() : reason, reason.toStdString());
}

/// Hands over what is in a database of another coordinate system.
Outcome handOver(const QString& path, const Source& source, const SurveyImport& import,
                 SurveyRecords&& other, ProgressReporter& progress)
{
    if (!import.onOtherSystem)
        return notImported(path, import, other.coordParameters, false);
    Outcome reading = source.read(progress, [&](ProjectLoader& loader, const std::string& file) {
        return loader.readRecords(file, other.records, other.coordParameters);
    });
    progress.hide();
    if (!reading.isDone())
        return reading;
    reading = notImported(path, import, other.coordParameters, true);
    import.onOtherSystem(path, std::move(other));
    return reading;
}

/// Reads the database and adds its results.
Outcome addResults(const QString& path, const SurveyImport& import, ProgressReporter& progress,
                   ImportSummary& summary)
{
    Source source(path);
    SurveyRecords other;
    Outcome reading = source.prepare(summary.remarks);
    if (reading.isDone())
        reading = source.read(progress, [&](ProjectLoader& loader, const std::string& file) {
            return loader.readSystem(file, other.coordParameters);
        });
    if (reading.isDone() && isOther(import, other.coordParameters))
        return handOver(path, source, import, std::move(other), progress);
    Content content;
    if (reading.isDone())
        reading = source.read(progress, [&](ProjectLoader& loader, const std::string& file) {
            return loader.readResults(file, import.points, content.points, content.coordParameters,
                                      content.rows);
        });
    progress.hide();
    if (!reading.isDone())
        return reading;
    if (isOther(import, content.coordParameters)) // another program has changed it meanwhile
        return notImported(path, import, content.coordParameters, false);
    sumUp(content.rows, summary);
    const std::size_t distinct = content.points.pointCount();
    summary.pointsRepeated = summary.linesRead - summary.skipped.count - distinct;
    tellReplaced(import.points, content.points, summary);
    summary.pointsReplaced = takeOver(import.points, std::move(content.points), import.undo);
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

Outcome readSurveyRecords(const QString& path, SurveyRecords& other, QStringList& remarks,
                          ProgressReporter& progress)
{
    Outcome reading = Outcome::done();
    try {
        Source source(path);
        reading = source.prepare(remarks);
        if (reading.isDone())
            reading = source.read(progress, [&](ProjectLoader& loader, const std::string& file) {
                return loader.readRecords(file, other.records, other.coordParameters);
            });
    } catch (const std::exception& fault) {
        reading = readingBrokeOff(path, reasonOf(fault));
    }
    progress.finish();
    return reading;
}
