#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Finds lines and points by their numbers. The parameter "what" of its entry is "open", which
/// shows the bar to type in, or "next" or "previous", which go to another match, also while the bar
/// is closed.
class FindCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
