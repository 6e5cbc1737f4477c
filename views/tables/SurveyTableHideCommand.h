#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Shows the dialog of the survey columns.
class SurveyTableHideCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
