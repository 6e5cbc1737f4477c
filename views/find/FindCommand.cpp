#include "views/find/FindCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "views/find/FindBar.h"

void FindCommand::execute()
{
    FindBar* const bar = FindBar::of(host());
    if (bar == nullptr)
        return;
    const std::string_view what = parameters().text("what");
    if (what == "next")
        bar->step(true);
    else if (what == "previous")
        bar->step(false);
    else
        bar->open();
}
