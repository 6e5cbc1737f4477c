#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Shows the time zone dialog. Spelled as registered.
class TimeZomeDlgCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
