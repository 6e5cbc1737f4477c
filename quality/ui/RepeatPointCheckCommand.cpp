#include "quality/ui/RepeatPointCheckCommand.h"

#include "quality/ui/CheckRun.h"
#include "quality/ui/DlgRepeatPtCheck.h"

void RepeatPointCheckCommand::execute()
{
    CheckRun::show<DlgRepeatPtCheck>(host(), CheckRun::run(host(), kRepeatPointCheck));
}
