#include "lum_desktop_sdkx/ProjectCommandBase.h"

#include "app/protocol/StatusKeys.h"
#include "lum_sdk/SystemDictionaries.h"

bool ProjectCommandBase::isEnabled() const
{
    return get_system_status_dictionary().integer(status::kProjectOpen) != 0;
}
