#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Moves tool bars and windows back to where the layout puts them.
class ResetLayoutCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
