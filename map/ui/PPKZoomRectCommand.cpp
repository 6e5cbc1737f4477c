#include "map/ui/PPKZoomRectCommand.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_sdk/Text.h"
#include "map/ui/MouseMode.h"

#include <QCursor>

void PPKZoomRectCommand::execute()
{
    if (IMapWindow* const window = map()) {
        if (isChecked()) {
            MouseMode::set(MouseMode::kPick);
            MouseMode::installPicking(*window);
        } else if (window->installReactor(
                       lum::toQString(parameters().text("reactor", "ReactorZoomRectTrans")))) {
            window->setMapCursor(Qt::CrossCursor);
            MouseMode::set(MouseMode::kZoomRect);
        }
    }
    announceStatus();
}

bool PPKZoomRectCommand::isChecked() const
{
    return MouseMode::current() == MouseMode::kZoomRect;
}
