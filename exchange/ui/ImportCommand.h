#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Imports a file into the open project. The entry's "kind" says what it holds: "design-csv",
/// "survey-csv" or "survey-db".
class ImportCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
