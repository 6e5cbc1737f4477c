#pragma once

#include "map/ui/MapCommandBase.h"

/// Lets the left button draw rectangles to zoom to; a second time, pick points again. The entry's
/// parameter "reactor" names the mouse handler (default "ReactorZoomRectTrans").
class PPKZoomRectCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
