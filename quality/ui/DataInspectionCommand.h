#pragma once

#include "lum_desktop_sdkx/ProjectCommandBase.h"

/// Judges every survey result by the quality parameters, and lists the faults.
class DataInspectionCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
