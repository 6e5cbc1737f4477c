#include "project/ui/ProjectCommandBase.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"

bool ProjectCommandBase::isEnabled() const
{
    return get_system_status_dictionary().integer(status::kProjectOpen) != 0;
}
