#include "lum_desktop_sdkx/frame/FrameComponents.h"

#include "lum_desktop_sdkx/frame/CoordinateReadout.h"
#include "lum_desktop_sdkx/frame/ExitCommand.h"
#include "lum_desktop_sdkx/frame/FullScreenCommand.h"
#include "lum_desktop_sdkx/frame/GoToWindowCommand.h"
#include "lum_desktop_sdkx/frame/GuideCommand.h"
#include "lum_desktop_sdkx/frame/LayerWindow.h"
#include "lum_desktop_sdkx/frame/MessageWindow.h"
#include "lum_desktop_sdkx/frame/ResetLayoutCommand.h"
#include "lum_desktop_sdkx/frame/SettingChoiceCommand.h"
#include "lum_desktop_sdkx/frame/ShortcutsCommand.h"
#include "lum_desktop_sdkx/frame/ShowQuestionsCommand.h"
#include "lum_desktop_sdkx/frame/SystemSettings.h"
#include "lum_desktop_sdkx/Registration.h"

void registerFrameComponents()
{
    using namespace desktop::registration;
    static const bool once = [] {
        window<CoordinateReadout>("CoordinateReadout", "坐标显示");
        window<LayerWindow>("LayerWindow", "图层窗口");
        window<MessageWindow>("MessageWindow", "消息窗口");
        command<ExitCommand>("ExitCommand", "退出");
        command<FullScreenCommand>("FullScreenCommand", "全屏");
        command<GoToWindowCommand>("GoToWindowCommand", "转到窗口");
        command<GuideCommand>("GuideCommand", "用户指南");
        command<ResetLayoutCommand>("ResetLayoutCommand", "恢复布局");
        command<SettingChoiceCommand>("SettingChoiceCommand", "系统设置选项");
        command<ShortcutsCommand>("ShortcutsCommand", "快捷键");
        command<ShowQuestionsCommand>("ShowQuestionsCommand", "重新显示提示");
        return settings<SystemSettings>("SystemSettings", "系统设置");
    }();
    static_cast<void>(once);
}
