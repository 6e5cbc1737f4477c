#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Shows the list of the points that were measured more than once.
class RepeatPointCheckCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
