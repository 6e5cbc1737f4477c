#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Runs the quality check and shows the list of faults.
class DataInspectionCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
