#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

struct ProjectPlace;

/// Makes a project: name and folder, then its settings; opens it.
class NewProjectCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;

private:
    void open(const ProjectPlace& place);
};
