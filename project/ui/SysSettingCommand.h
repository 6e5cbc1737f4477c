#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Shows the settings of the open project.
class SysSettingCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
