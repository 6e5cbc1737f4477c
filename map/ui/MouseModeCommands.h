#pragma once

#include "map/ui/MapCommandBase.h"

// The commands that give the left mouse button another meaning. Executed while their own mode is
// on, they go back to picking points.

/// The left button drags the map.
class PPKMoveCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};

/// The left button draws a rectangle to zoom to. The entry's parameter "reactor" names the mouse
/// handler (default "ReactorZoomRectTrans").
class PPKZoomRectCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
