#include "lum_desktop_sdkx/frame/SystemSettings.h"

#include "lum_desktop_sdkx/frame/Applicationx.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/SystemDictionaries.h"

SystemSettings::SystemSettings(const char* /*config*/) {}

SystemParameter* SystemSettings::getSystemParameter()
{
    return &get_system_ini_parameter();
}

IMainFrame* SystemSettings::getMainFrame()
{
    return &Applicationx::instance().mainFrame();
}

ICoordTransform* SystemSettings::getCoordTransform()
{
    return &get_project_coord_transform();
}
