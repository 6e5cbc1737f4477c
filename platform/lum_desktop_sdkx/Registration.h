#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"

/// Registers a class under a name and a caption: `command<ExitCommand>("ExitCommand", "退出")`.
/// Each answers false, with a line in the log, when the name is taken.
namespace desktop::registration {

template <class Class>
bool assistant(const char* name, const char* caption)
{
    using Make = Maker<IGuiAssistant, Class, IDesktopHost*>;
    return extensible_factory_register_IGuiAssistant(name, caption, Make::create, Make::destroy);
}

template <class Class>
bool window(const char* name, const char* caption)
{
    using Make = Maker<IWindow, Class, IDesktopHost*>;
    return extensible_factory_register_IWindow(name, caption, Make::create, Make::destroy);
}

template <class Class>
bool layer(const char* name, const char* caption)
{
    using Make = Maker<ILayerViewer, Class, IDesktopHost*>;
    return extensible_factory_register_ILayerViewer(name, caption, Make::create, Make::destroy);
}

template <class Class>
bool reactor(const char* name, const char* caption)
{
    using Make = Maker<IReactor, Class, IMapWindow*>;
    return extensible_factory_register_IReactor(name, caption, Make::create, Make::destroy);
}

template <class Class>
bool command(const char* name, const char* caption)
{
    using Make = Maker<ICommandExecuterx, Class, IDesktopHost*>;
    return extensible_factory_register_ICommandExecuterx(name, caption, Make::create,
                                                         Make::destroy);
}

template <class Class>
bool settings(const char* name, const char* caption)
{
    using Make = Maker<ISystemSettings, Class>;
    return extensible_factory_register_ISystemSettings(name, caption, Make::create, Make::destroy);
}

} // namespace desktop::registration
