#include "project/ProjectCreator.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Files.h"
#include "basalt_utilities/Paths.h"
#include "lum_sdk/FileSync.h"
#include "lum_sdk/ICoordTransform.h"
#include "lum_sdk/ProjectCoordTransform.h"
#include "lum_sdk/SystemDictionaries.h"
#include "project/model/CoordinateRecord.h"
#include "project/ParameterFiles.h"
#include "project/ProjectFile.h"
#include "project/ProjectLock.h"
#include "project/ProjectPlace.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QLocale>

namespace ProjectCreator {

namespace {

constexpr const char* kTemplateFolder =
    "$(APP_DIR)/../etc/Tarvona/config/Skyquill/Tool/DataProcess5/";

QString cannotWrite(const QString& path)
{
    return QCoreApplication::translate("ProjectStore", "The file \"%1\" cannot be written.")
        .arg(path);
}

/// Moves what stands under that name out of the way.
bool keepOld(const QString& path)
{
    if (!QFile::exists(path))
        return true;
    const QString when = QDateTime::currentDateTime().toString(QStringLiteral(".yyyyMMdd-hhmmss"));
    return lum::renameFile(path.toStdString(), (path + when).toStdString()).empty();
}

bool copyTemplate(const char* name, const QString& target)
{
    const std::string source = basalt::resolvedPath(std::string(kTemplateFolder) + name);
    return file_system_copy_file(source, target.toStdString()) &&
           // An installation is read-only; what is copied from it must not be.
           QFile::setPermissions(target,
                                 QFile::permissions(target) | QFile::ReadOwner | QFile::WriteOwner);
}

} // namespace

void describe(const ProjectPlace& place, IDictionary& project)
{
    project.set(ProjectFile::kPath, place.folder.toStdString());
    const QDateTime now = QDateTime::currentDateTime();
    project.set(ProjectFile::kTime,
                QLocale::c().toString(now, QStringLiteral("yyyy/MM/dd hh:mm:ss")).toStdString());
    project.set(ProjectFile::kVersion, get_system_config_parameter().dictionary().text("version"));
    const IDictionary& current = get_project_coord_transform().parameters();
    dictionary_copy(current, project, CoordinateRecord::kKeys);
    project.set(CoordinateRecord::kId,
                current.text(CoordinateRecord::kId, CoordinateRecord::kUndefinedId));
}

QString create(const ProjectPlace& place, const IDictionary& project)
{
    ProjectLock lock;
    if (const StoreResult taken = lock.take(place); !taken.isDone)
        return taken.message;
    const QString quality = place.folder + QLatin1String(ParameterFiles::kQualityFile);
    const QString design = place.folder + QLatin1String(ParameterFiles::kDesignFile);
    const QString database = place.database();
    // A copy of an interrupted save would be taken for the new database's.
    for (const QString& path :
         {place.file, database, database + QStringLiteral(".saved"), quality, design}) {
        if (!keepOld(path))
            return cannotWrite(path);
    }
    if (!ProjectFile::write(place.file, project))
        return cannotWrite(place.file);
    if (!copyTemplate("template.db", database))
        return cannotWrite(database);
    if (!copyTemplate("design_param.ini", design))
        return cannotWrite(design);
    return copyTemplate("qc_param.ini", quality) ? QString() : cannotWrite(quality);
}

} // namespace ProjectCreator
