#pragma once

#include "lum_desktop_sdkx/ProjectCommandBase.h"

/// Asks, and saves the open project.
class SaveProjectCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
