#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Puts tool bars and windows back to where the layout places them.
class ResetLayoutCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
