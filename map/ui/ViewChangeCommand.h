#pragma once

#include "map/ui/MapCommandBase.h"

/// Shows the picture that its caption names, "Survey View" or "Design View", on the map.
class ViewChangeCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};
