#include "project/ui/ProjectCommandBase.h"

#include "project/ui/ProjectState.h"

bool ProjectCommandBase::isEnabled() const
{
    return ProjectState::isOpen();
}
