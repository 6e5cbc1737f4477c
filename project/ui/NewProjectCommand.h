#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Asks for name and folder of a new project, then for its settings; makes it and opens it.
class NewProjectCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
