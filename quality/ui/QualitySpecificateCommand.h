#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Lets the user edit the limits of the quality check. Spelled as registered.
class QualitySpecificateCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
