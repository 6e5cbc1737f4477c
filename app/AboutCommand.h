#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Shows the about box.
class AboutCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
