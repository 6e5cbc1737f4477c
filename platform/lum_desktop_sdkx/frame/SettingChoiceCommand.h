#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Sets one system setting to one value, by the entry's attributes "setting" and "value". Checked
/// while the setting has that value; an entry with the attribute "otherwise" then sets that value
/// instead. With "restart" 1 the user is told that the change takes effect at the next start.
class SettingChoiceCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
