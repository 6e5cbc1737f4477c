// Every component that the program offers, registered before main. Compiled into the program
// itself: the linker would drop this file from a library, since nobody refers to it.

#include "app/AboutCommand.h"
#include "app/DataProcess5Assistant.h"
#include "app/ProgressStatusBarForSkyquill.h"
#include "lum_desktop_sdkx/ComponentKinds.h"

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
    command<AboutCommand>               ("AboutCommand",                 "关于"),
};
// clang-format on

} // namespace
