#pragma once

#include "map/ui/MapCommandBase.h"

/// Shows or hides the rectangle around the survey.
class DrawBoundaryCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
