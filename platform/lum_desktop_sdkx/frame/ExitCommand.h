#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Closes the main frame, which asks the assistants first.
class ExitCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
