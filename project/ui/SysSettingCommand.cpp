#include "project/ui/SysSettingCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "model/CoordinateRecord.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/CoordSystemQuestions.h"
#include "project/ui/DlgProjectSet.h"
#include "project/ui/ProjectState.h"

void SysSettingCommand::execute()
{
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    basalt::Dictionary project(manager.project());
    project.set(ProjectFile::kPath, ProjectState::place().folder.toStdString());
    // The system in use comes from the database, which may be newer than the project file.
    const IDictionary& coordSystem = get_project_coord_transform().parameters();
    CoordinateRecord::copy(coordSystem, project);
    basalt::Dictionary before(project);
    DlgProjectSet dialog(host(), project);
    dialog.setInformationReadOnly(manager.projectFileFault());
    dialog.setSystemQuestion([&](const IDictionary& chosen) {
        return CoordSystemQuestions::mayChange(&dialog, coordSystem, chosen);
    });
    QObject::connect(&dialog, &DlgProjectSet::applied, &dialog, [&] {
        basalt::Dictionary parameters;
        CoordinateRecord::copy(project, parameters);
        dictionary_copy(project, manager.project());
        manager.setCoordSystem(parameters);
        CoordinateRecord::copy(project, before); // another system is an edit of its own
        if (!dictionary_same(before, project))
            manager.markChanged();
    });
    dialog.exec();
}
