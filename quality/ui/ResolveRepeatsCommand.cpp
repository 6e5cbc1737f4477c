#include "quality/ui/ResolveRepeatsCommand.h"

#include "quality/ui/DlgRepeatChoice.h"

void ResolveRepeatsCommand::execute()
{
    DlgRepeatChoice::open(host());
}
