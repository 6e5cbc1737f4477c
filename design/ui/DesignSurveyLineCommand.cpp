#include "design/ui/DesignSurveyLineCommand.h"

#include "design/ui/DlgDesignLine.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/IEventManager.h"
#include "protocol/Events.h"

#include <QPointer>

void DesignSurveyLineCommand::execute()
{
    static QPointer<DlgDesignLine> open; // one is enough
    if (open == nullptr || !open->isVisible()) {
        open = new DlgDesignLine(host()); // deletes itself
        QObject::connect(open, &QDialog::accepted, open, [&host = host()] {
            host.eventManager().publish(events::kRefreshDesignLayer, nullptr, 0);
        });
    }
    open->show();
    open->raise();
    open->activateWindow();
}
