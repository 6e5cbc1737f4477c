// Every component that the program offers, registered before main. Compiled into the program
// itself: the linker would drop this file from a library, since nobody refers to it.

#include "app/AboutCommand.h"
#include "app/CoordFormatCommand.h"
#include "app/DataProcess5Assistant.h"
#include "app/ProgressStatusBarForSkyquill.h"
#include "lum_desktop_sdkx/Registration.h"
#include "project/ui/CloseProjectCommand.h"
#include "project/ui/NewProjectCommand.h"
#include "project/ui/OpenProjectCommand.h"
#include "project/ui/RecentProjectCommand.h"
#include "project/ui/SaveProjectCommand.h"
#include "project/ui/SysSettingCommand.h"
#include "project/ui/TimeZomeDlgCommand.h"

namespace {

using namespace desktop::registration;

// clang-format off
[[maybe_unused]] const bool kRegistered[] = {
    assistant<DataProcess5Assistant>    ("DataProcess5",                 "助手"),
    window<ProgressStatusBarForSkyquill>("ProgressStatusBarForSkyquill", "Progress"),
    command<NewProjectCommand>          ("NewProjectCommand",            "新建工程"),
    command<OpenProjectCommand>         ("OpenProjectCommand",           "打开工程"),
    command<RecentProjectCommand>       ("RecentProjectCommand",         "最近工程"),
    command<SaveProjectCommand>         ("SaveProjectCommand",           "保存工程"),
    command<CloseProjectCommand>        ("CloseProjectCommand",          "关闭工程"),
    command<SysSettingCommand>          ("SysSettingCommand",            "设置"),
    command<TimeZomeDlgCommand>         ("TimeZomeDlgCommand",           "时区修改"),
    command<CoordFormatCommand>         ("CoordFormatCommand",           "坐标格式"),
    command<AboutCommand>               ("AboutCommand",                 "关于"),
};
// clang-format on

} // namespace
