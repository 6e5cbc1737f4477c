#pragma once

#include "project/ui/ProjectCommandBase.h"

/// Opens the dialog of the design lines, or brings the one that is open to the front. A generated
/// design is announced by "REFRESH_DESIGN_LAYER".
class DesignSurveyLineCommand final : public ProjectCommandBase
{
public:
    using ProjectCommandBase::ProjectCommandBase;
    void execute() override;
};
