#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

// The frame's own commands.

/// Closes the main frame, which asks first.
class ExitCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};

/// Switches between full screen and window.
class FullScreenCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};

/// Puts docks back to where the layout places them.
class ResetLayoutCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};

/// Gives one system setting one value: the entry's attributes "setting" and "value". Checked while
/// it has that value. With "restart" 1 the user is told that it takes effect at the next start.
class SettingChoiceCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
