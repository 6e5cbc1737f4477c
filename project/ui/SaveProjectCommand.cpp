#include "project/ui/SaveProjectCommand.h"

#include "project/ui/ProjectSession.h"

void SaveProjectCommand::execute()
{
    ProjectSession::save(host());
}
