#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Opens one of the recent projects: that at the entry's "place" in the list, counted from 0. An
/// entry without a project is hidden; the first one then says that there are none.
class RecentProjectCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
    [[nodiscard]] bool isEnabled() const override;
    [[nodiscard]] QString caption() const override;

private:
    [[nodiscard]] int place() const;
    [[nodiscard]] QString file() const;
};
