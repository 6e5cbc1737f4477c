#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Asks for a project file and opens it, in place of the open project.
class OpenProjectCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
