#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Lists everything that is wrong in the window of the problems, which comes to the front.
class FindProblemsCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;

    void execute() override;
};

/// Goes to another problem of the list. The parameter "what" of its entry is "next" or "previous".
class ProblemStepCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;

    void execute() override;
};
