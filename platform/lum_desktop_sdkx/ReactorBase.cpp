#include "lum_desktop_sdkx/ReactorBase.h"

#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/MouseKeyEventParameters.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/IHost.h"

int ReactorBase::lButtonDown(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::lButtonUp(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::rButtonDown(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::rButtonUp(const MouseKeyEventParameters& /*event*/)
{
    IMapWindow& mapWindow = map(); // kept, since installing others may delete this reactor
    mapWindow.installDefaultReactors();
    mapWindow.host().eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
    return 1;
}

int ReactorBase::mButtonDown(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::mButtonUp(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::dblClick(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::mouseMove(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::mouseWheel(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}

int ReactorBase::keyPress(const MouseKeyEventParameters& event)
{
    return event.key == Qt::Key_Escape ? rButtonUp(event) : 0;
}

int ReactorBase::keyRelease(const MouseKeyEventParameters& /*event*/)
{
    return 0;
}
