#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Asks, and saves the open project.
class SaveProjectCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
