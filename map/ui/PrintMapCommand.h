#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Puts what the map shows on paper, or into a file.
class PrintMapCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
