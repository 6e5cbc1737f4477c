// Every component that the program offers, registered before main. Compiled into the program
// itself: the linker would drop this file from a library, since nobody refers to it.

#include "app/AboutCommand.h"
#include "app/CoordFormatCommand.h"
#include "app/DataProcess5Assistant.h"
#include "app/ProgressStatusBarForSkyquill.h"
#include "lum_desktop_sdkx/ComponentKinds.h"
#include "project/ui/CloseProjectCommand.h"
#include "project/ui/NewProjectCommand.h"
#include "project/ui/OpenProjectCommand.h"
#include "project/ui/RecentProjectCommand.h"
#include "project/ui/SaveProjectCommand.h"
#include "project/ui/SysSettingCommand.h"
#include "project/ui/TimeZomeDlgCommand.h"
#include "quality/ui/DataInspectionCommand.h"
#include "quality/ui/QualitySpecificateCommand.h"

namespace {

template <class Class>
bool assistant(const char* name, const char* caption)
{
    using Make = desktop::Maker<IGuiAssistant, Class, IDesktopHost*>;
    return extensible_factory_register_IGuiAssistant(name, caption, Make::create, Make::destroy);
}

template <class Class>
bool window(const char* name, const char* caption)
{
    using Make = desktop::Maker<IWindow, Class, IDesktopHost*>;
    return extensible_factory_register_IWindow(name, caption, Make::create, Make::destroy);
}

template <class Class>
bool command(const char* name, const char* caption)
{
    using Make = desktop::Maker<ICommandExecuterx, Class, IDesktopHost*>;
    return extensible_factory_register_ICommandExecuterx(name, caption, Make::create,
                                                         Make::destroy);
}

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
    command<QualitySpecificateCommand>  ("QualitySpecificateCommand",    "质量规范"),
    command<DataInspectionCommand>      ("DataInspectionCommand",        "数据检查"),
    command<CoordFormatCommand>         ("CoordFormatCommand",           "坐标格式"),
    command<AboutCommand>               ("AboutCommand",                 "关于"),
};
// clang-format on

} // namespace
