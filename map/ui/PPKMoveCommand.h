#pragma once

#include "map/ui/MapCommandBase.h"

/// Lets the left button drag the map; a second time, pick points again.
class PPKMoveCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;
};
