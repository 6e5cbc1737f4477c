#include "lum_sdk/IHost.h"

IEventManager* controller_event_manager_onqt_get_instance(IHost* host)
{
    return &host->eventManager();
}
