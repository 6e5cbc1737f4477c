#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Switches between full screen and window.
class FullScreenCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
