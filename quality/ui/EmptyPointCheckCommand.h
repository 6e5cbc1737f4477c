#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Finds the design points that are not surveyed and shows their list.
class EmptyPointCheckCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
