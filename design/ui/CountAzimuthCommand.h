#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Shows the azimuth calculator; the one that is open comes to the front.
class CountAzimuthCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
