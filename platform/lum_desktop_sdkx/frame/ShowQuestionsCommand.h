#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Lets all message boxes be shown again that the user has silenced, and tells how many.
class ShowQuestionsCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
};
