#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Opens the list in which points that were measured more than once get one result.
class ResolveRepeatsCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
