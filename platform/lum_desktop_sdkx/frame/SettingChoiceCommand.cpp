#include "lum_desktop_sdkx/frame/SettingChoiceCommand.h"

#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/files/SystemDictionaries.h"

#include <QCoreApplication>

void SettingChoiceCommand::execute()
{
    const bool isTakenBack = isChecked();
    if (isTakenBack && !parameters().contains("otherwise"))
        return;
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(parameters().text("setting"),
                              parameters().text(isTakenBack ? "otherwise" : "value"));
    settings.save(); // logs a failure; the choice is then kept for this session only
    host().eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
    if (parameters().integer("restart") != 0)
        LumMessageBox::information(
            host().dialogParent(), QCoreApplication::translate("SettingChoiceCommand", "Settings"),
            QCoreApplication::translate("SettingChoiceCommand",
                                        "The change takes effect at the next start."));
}

bool SettingChoiceCommand::isChecked() const
{
    return get_system_ini_parameter().dictionary().text(parameters().text("setting")) ==
           parameters().text("value");
}
