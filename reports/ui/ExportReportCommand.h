#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Asks for reports and writes them, one after the other: one that fails does not keep
/// the others from being written. Tells of each what became of it.
class ExportReportCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
