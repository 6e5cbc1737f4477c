#pragma once

#include "lum_desktop_sdkx/ProjectCommandBase.h"

/// Offers to save the open project, and closes it.
class CloseProjectCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
