#include "project/LoggedOutcome.h"

#include "basalt_utilities/ILogger.h"

Outcome logged(Outcome outcome)
{
    if (!outcome.isDone())
        basalt::logError(outcome.detail());
    else if (!outcome.text().isEmpty())
        basalt::logInfo(outcome.text().toStdString());
    return outcome;
}

int answered(const Outcome& outcome, Outcome* asked)
{
    if (asked != nullptr)
        *asked = outcome;
    return logged(outcome).toFlag();
}
