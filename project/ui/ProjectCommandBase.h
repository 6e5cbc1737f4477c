#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// A command on the open project: disabled while there is none.
class ProjectCommandBase : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    [[nodiscard]] bool isEnabled() const override;
};
