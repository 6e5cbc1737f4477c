#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Asks for raster files and lays them under the survey. Always enabled: without a project it says
/// that one is needed.
class SetTifPathCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;

    void execute() override;
};
