#include "views/history/HistoryCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "views/history/DlgHistory.h"

HistoryCommand::HistoryCommand(const char* config, IDesktopHost* desktop)
    : ProjectCommandBase(config, desktop),
      m_subscription(*this, events::kShowPointHistory, desktop->eventManager())
{
}

void HistoryCommand::execute()
{
    if (ProjectState::hasData())
        DlgHistory::open(host());
}

void HistoryCommand::handleEvent(const char* /*eventName*/, const char* payload, int /*reserved*/)
{
    if (!ProjectState::hasData())
        return;
    basalt::Dictionary values;
    payload::read(payload, values);
    DlgHistory::open(host(), PointName{std::string(values.text("lineName")),
                                       std::string(values.text("pointName"))});
}
