#include "map/ui/DrawCommands.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "map/ui/SurveyLook.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "quality/colors/ChosenColors.h"

#include <QCoreApplication>

namespace {

/// Changes a setting for this session and the next ones.
void keepSetting(const char* key, std::string_view value)
{
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(key, value);
    settings.save(); // logs a failure; the choice is then kept for this session only
}

SurveyPictureOptions chosenOptions()
{
    return chosenSurveyOptions(chosenColoring() != nullptr);
}

} // namespace

LineToggleCommand::LineToggleCommand(const char* config, IDesktopHost* host, const char* statusKey)
    : MapCommandBase(config, host), m_statusKey(statusKey)
{
}

void LineToggleCommand::execute()
{
    if (IMapWindow* const window = map()) {
        get_system_status_dictionary().set(m_statusKey, isChecked() ? "0" : "1");
        window->zoomAll();
    }
    announceStatus();
}

bool LineToggleCommand::isChecked() const
{
    return get_system_status_dictionary().integer(m_statusKey, 1) == 1;
}

DrawReceiverCommand::DrawReceiverCommand(const char* config, IDesktopHost* host)
    : LineToggleCommand(config, host, status::kShowReceiverLines)
{
}

QString DrawReceiverCommand::caption() const
{
    return isChecked() ? QCoreApplication::translate("DrawReceiverCommand", "not show r line")
                       : QCoreApplication::translate("DrawReceiverCommand", "show r line");
}

DrawExcitationCommand::DrawExcitationCommand(const char* config, IDesktopHost* host)
    : LineToggleCommand(config, host, status::kShowSourceLines)
{
}

QString DrawExcitationCommand::caption() const
{
    return isChecked() ? QCoreApplication::translate("DrawExcitationCommand", "not show s line")
                       : QCoreApplication::translate("DrawExcitationCommand", "show s line");
}

void DrawBoundaryCommand::execute()
{
    if (IMapWindow* const window = map()) {
        IDictionary& values = get_system_status_dictionary();
        if (values.integer(status::kDrawBoundaryRect) == 0) {
            values.set(status::kDrawBoundaryRect, "1");
            host().eventManager().publish(events::kInitBoundaryRect, nullptr, 0);
        } else {
            values.set(status::kDrawBoundaryRect, "0");
        }
        window->zoomAll();
    }
    announceStatus();
}

bool DrawBoundaryCommand::isChecked() const
{
    return get_system_status_dictionary().integer(status::kDrawBoundaryRect) == 1;
}

void BaseTiesCommand::execute()
{
    keepSetting(settings::kShowBaseTies, isChecked() ? "0" : "1");
    announceStatus();
}

bool BaseTiesCommand::isChecked() const
{
    return chosenOptions().showsBaseTies;
}

void ResultNamesCommand::execute()
{
    keepSetting(settings::kResultNames, parameters().text("names"));
    announceStatus();
}

bool ResultNamesCommand::isChecked() const
{
    using Names = SurveyPictureOptions::Names;
    const std::string_view names = parameters().text("names");
    const Names own = names == "none"   ? Names::None
                      : names == "room" ? Names::WithRoom
                                        : Names::All;
    return chosenOptions().names == own;
}
