#include "project/ui/CloseProjectCommand.h"

#include "project/ui/ProjectSession.h"
#include "project/ui/ProjectState.h"

void CloseProjectCommand::execute()
{
    if (ProjectState::isOpen() && ProjectSession::offerSave(host()))
        ProjectSession::forget(host());
}
