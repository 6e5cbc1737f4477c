#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Compares the resurveys with the first results and shows the list of faults.
class ReSurveyPointCheckCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
