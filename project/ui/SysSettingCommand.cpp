#include "project/ui/SysSettingCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "model/CoordinateRecord.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/DlgProjectSet.h"
#include "project/ui/ProjectSession.h"

void SysSettingCommand::execute()
{
    DataProcessDataManager& manager = *DataProcessDataManager::instance();
    basalt::Dictionary project(manager.project());
    project.set(ProjectFile::kPath, ProjectSession::place().folder.toStdString());
    // The database's word counts, which may be newer than the project file's.
    const IDictionary& coordSystem = get_project_coord_transform().parameters();
    dictionary_copy(coordSystem, project, CoordinateRecord::kKeys);
    dictionary_copy(coordSystem, project, CoordinateRecord::kId);
    DlgProjectSet dialog(host(), project);
    QObject::connect(&dialog, &DlgProjectSet::applied, &dialog, [&] {
        dictionary_copy(project, manager.project());
        basalt::Dictionary parameters;
        dictionary_copy(project, parameters, CoordinateRecord::kKeys);
        dictionary_copy(project, parameters, CoordinateRecord::kId);
        manager.setCoordSystem(parameters);
    });
    dialog.exec();
}
