#include "views/problems/ProblemCommands.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "views/problems/ProblemWindow.h"

namespace {

const QLatin1String kWindow("Problems List");

} // namespace

void FindProblemsCommand::execute()
{
    auto* const window = host().windows().findAs<ProblemWindow>(kWindow);
    if (window == nullptr)
        return;
    host().windows().activate(kWindow);
    window->find();
    window->setFocus(Qt::ShortcutFocusReason);
}

void ProblemStepCommand::execute()
{
    if (auto* const window = host().windows().findAs<ProblemWindow>(kWindow))
        window->step(parameters().text("what") != "previous");
}
