#include "map/ui/MouseModeCommands.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_sdk/Text.h"
#include "map/ui/MouseMode.h"

#include <QCursor>

namespace {

/// Changes between `mode`, with its mouse handler and cursor, and picking.
void toggle(IMapWindow& map, int mode, const QString& reactor, Qt::CursorShape cursor)
{
    if (MouseMode::current() == mode) {
        MouseMode::set(MouseMode::kPick);
        MouseMode::installPicking(map);
    } else if (map.installReactor(reactor)) {
        map.setMapCursor(cursor);
        MouseMode::set(mode);
    }
}

} // namespace

void PPKMoveCommand::execute()
{
    if (IMapWindow* const window = map())
        toggle(*window, MouseMode::kPan, QStringLiteral("ReactorMoveTrans"), Qt::OpenHandCursor);
    announceStatus();
}

bool PPKMoveCommand::isChecked() const
{
    return MouseMode::current() == MouseMode::kPan;
}

void PPKZoomRectCommand::execute()
{
    const QString reactor = lum::toQString(parameters().text("reactor", "ReactorZoomRectTrans"));
    if (IMapWindow* const window = map())
        toggle(*window, MouseMode::kZoomRect, reactor, Qt::CrossCursor);
    announceStatus();
}

bool PPKZoomRectCommand::isChecked() const
{
    return MouseMode::current() == MouseMode::kZoomRect;
}
