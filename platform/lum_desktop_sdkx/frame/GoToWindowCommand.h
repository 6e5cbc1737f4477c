#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Shows the window that its entry names by "window", brings it to the front and gives it the
/// keyboard: the part of it that had it last, else its list. Enabled while the window is there.
class GoToWindowCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    [[nodiscard]] bool isEnabled() const override;
    void execute() override;

private:
    [[nodiscard]] QString windowName() const;
};
