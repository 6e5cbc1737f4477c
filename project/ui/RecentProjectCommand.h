#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Opens one of the projects that were open last: the entry's "place", counted from 0. An entry
/// without a project does not show.
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
