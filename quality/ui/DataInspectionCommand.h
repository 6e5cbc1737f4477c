#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Judges every survey result by the quality parameters, and lists the faults.
class DataInspectionCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
