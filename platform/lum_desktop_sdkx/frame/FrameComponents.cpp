#include "lum_desktop_sdkx/frame/FrameComponents.h"

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/frame/CoordinateReadout.h"
#include "lum_desktop_sdkx/frame/ExitCommand.h"
#include "lum_desktop_sdkx/frame/FullScreenCommand.h"
#include "lum_desktop_sdkx/frame/LayerWindow.h"
#include "lum_desktop_sdkx/frame/MessageWindow.h"
#include "lum_desktop_sdkx/frame/ResetLayoutCommand.h"
#include "lum_desktop_sdkx/frame/SettingChoiceCommand.h"
#include "lum_desktop_sdkx/frame/SystemSettings.h"

namespace {

template <class Window>
void addWindow(const char* name, const char* caption)
{
    using Make = desktop::Maker<IWindow, Window, IDesktopHost*>;
    extensible_factory_register_IWindow(name, caption, Make::create, Make::destroy);
}

template <class Command>
void addCommand(const char* name, const char* caption)
{
    using Make = desktop::Maker<ICommandExecuterx, Command, IDesktopHost*>;
    extensible_factory_register_ICommandExecuterx(name, caption, Make::create, Make::destroy);
}

} // namespace

void registerFrameComponents()
{
    static const bool once = [] {
        addWindow<CoordinateReadout>("CoordinateReadout", "坐标显示");
        addWindow<LayerWindow>("LayerWindow", "图层窗口");
        addWindow<MessageWindow>("MessageWindow", "消息窗口");
        addCommand<ExitCommand>("ExitCommand", "退出");
        addCommand<FullScreenCommand>("FullScreenCommand", "全屏");
        addCommand<ResetLayoutCommand>("ResetLayoutCommand", "恢复布局");
        addCommand<SettingChoiceCommand>("SettingChoiceCommand", "系统设置选项");
        using Settings = desktop::Maker<ISystemSettings, SystemSettings>;
        return extensible_factory_register_ISystemSettings("SystemSettings", "系统设置",
                                                           Settings::create, Settings::destroy);
    }();
    static_cast<void>(once);
}
