#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Lists the keys of all commands in a window.
class ShortcutsCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
