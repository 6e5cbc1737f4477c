#include "project/ProjectCreator.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Product.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/DictionaryXml.h"
#include "lum_sdk/files/FileSync.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/WholeFile.h"
#include "model/CoordinateRecord.h"
#include "project/ParameterFiles.h"
#include "project/ProjectFile.h"
#include "project/ProjectLock.h"
#include "project/ProjectPlace.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QLocale>
#include <QStringList>

#include <string>
#include <utility>
#include <vector>

namespace ProjectCreator {

namespace {

Outcome cannotWrite(const QString& path, const QString& why)
{
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore", "The file \"%1\" cannot be written: %2.")
            .arg(path, why));
}

void logFailure(const std::string& why)
{
    if (!why.empty())
        basalt::logError("A file of the project that stood here before has lost its name: " + why);
}

/// The files of a new project. The destructor removes what was written and gives moved files their
/// names back, unless `keep` was called.
class NewFiles
{
public:
    NewFiles() = default;
    NewFiles(const NewFiles&) = delete;
    NewFiles& operator=(const NewFiles&) = delete;
    ~NewFiles()
    {
        for (const QString& path : m_written)
            QFile::remove(path);
        for (auto move = m_moved.rbegin(); move != m_moved.rend(); ++move)
            logFailure(lum::renameFile(move->second, move->first));
    }
    void keep()
    {
        m_written.clear();
        m_moved.clear();
    }

    /// Renames the file `path`, if there is one.
    Outcome moveAside(const QString& path, const QString& to)
    {
        if (!QFile::exists(path))
            return Outcome::done();
        const std::string why = lum::renameFile(path.toStdString(), to.toStdString());
        if (!why.empty())
            return cannotWrite(path, QString::fromStdString(why));
        m_moved.emplace_back(path.toStdString(), to.toStdString());
        return Outcome::done();
    }

    Outcome write(const QString& path, const QByteArray& content)
    {
        const QString why = lum::writeWholeFile(path, content);
        if (!why.isEmpty())
            return cannotWrite(path, why);
        m_written << path;
        return Outcome::done();
    }

    Outcome copyTemplate(const char* name, const QString& to)
    {
        QByteArray content;
        const Outcome reading = readTemplate(name, content);
        return reading.isDone() ? write(to, content) : reading;
    }

private:
    QStringList m_written;
    std::vector<std::pair<std::string, std::string>> m_moved; ///< from, to
};

/// Moves the old files of these names aside. SQLite's own files move with their database: it would
/// play an old journal back into the new one. The copy of an interrupted save moves after the
/// database: should this be cut off, the old project can be opened from the copy alone.
Outcome moveOldFiles(NewFiles& files, const ProjectPlace& place)
{
    const QString when = QDateTime::currentDateTime().toString(QStringLiteral(".yyyyMMdd-hhmmss"));
    const QString database = place.database();
    for (const char* beside : {"", "-journal", "-wal", "-shm", ".saved"}) {
        const QString ending = QLatin1String(beside);
        Outcome moving = files.moveAside(database + ending, database + when + ending);
        if (!moving.isDone())
            return moving;
    }
    for (const QString& path :
         {place.file, place.folder + QLatin1String(ParameterFiles::kQualityFile),
          place.folder + QLatin1String(ParameterFiles::kDesignFile)}) {
        Outcome moving = files.moveAside(path, path + when);
        if (!moving.isDone())
            return moving;
    }
    return Outcome::done();
}

} // namespace

Outcome readTemplate(const char* name, QByteArray& content)
{
    QFile source(QString::fromStdString(basalt::toolFolder() + '/' + name));
    if (source.open(QIODevice::ReadOnly)) {
        content = source.readAll();
        return Outcome::done();
    }
    return Outcome::failed(
        QCoreApplication::translate("ProjectStore", "The file \"%1\" cannot be read: %2.")
            .arg(source.fileName(), source.errorString()));
}

void describe(const ProjectPlace& place, IDictionary& project)
{
    project.set(ProjectFile::kPath, place.folder.toStdString());
    const QDateTime now = QDateTime::currentDateTime();
    project.set(ProjectFile::kTime,
                QLocale::c().toString(now, QStringLiteral("yyyy/MM/dd hh:mm:ss")).toStdString());
    project.set(ProjectFile::kVersion, get_system_config_parameter().dictionary().text("version"));
    const IDictionary& current = get_project_coord_transform().parameters();
    project.set(CoordinateRecord::kId, CoordinateRecord::kUndefinedId);
    CoordinateRecord::copy(current, project);
}

Outcome create(const ProjectPlace& place, const IDictionary& project,
               const std::function<Outcome()>& fill)
{
    ProjectLock lock;
    if (Outcome taken = lock.take(place); !taken.isDone())
        return taken;
    NewFiles files;
    Outcome making = moveOldFiles(files, place);
    const std::pair<const char*, QString> templates[] = {
        {kDatabase, place.database()},
        {"design_param.ini", place.folder + QLatin1String(ParameterFiles::kDesignFile)},
        {"qc_param.ini", place.folder + QLatin1String(ParameterFiles::kQualityFile)}};
    for (const auto& [name, target] : templates) {
        if (making.isDone())
            making = files.copyTemplate(name, target);
    }
    if (making.isDone() && fill)
        making = fill();
    if (making.isDone()) // last, since the project file is what makes the folder a project
        making = files.write(place.file, lum::writeDictionary(project));
    if (making.isDone())
        files.keep();
    return making;
}

Outcome replaceDatabase(const ProjectPlace& place)
{
    const QString database = place.database();
    if (QFile::exists(database) || QFile::exists(database + QStringLiteral(".saved")))
        return Outcome::done();
    NewFiles files;
    Outcome making = files.copyTemplate(kDatabase, database);
    if (making.isDone())
        files.keep();
    return making;
}

} // namespace ProjectCreator
