#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Opens the demo survey. The first time it is made in the user's documents, or in a folder that
/// the user chooses; what is changed in it later stays.
class DemoSurveyCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;

private:
    [[nodiscard]] QString chooseLocation();
    [[nodiscard]] QString make();
};
