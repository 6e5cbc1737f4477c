#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Offers to save the open project, and closes it.
class CloseProjectCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
