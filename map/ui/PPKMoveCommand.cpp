#include "map/ui/PPKMoveCommand.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "map/ui/MouseMode.h"

#include <QCursor>

void PPKMoveCommand::execute()
{
    if (IMapWindow* const window = map()) {
        if (isChecked()) {
            MouseMode::set(MouseMode::kPick);
            MouseMode::installPicking(*window);
        } else if (window->installReactor(QStringLiteral("ReactorMoveTrans"))) {
            window->setMapCursor(Qt::OpenHandCursor);
            MouseMode::set(MouseMode::kPan);
        }
    }
    announceStatus();
}

bool PPKMoveCommand::isChecked() const
{
    return MouseMode::current() == MouseMode::kPan;
}
