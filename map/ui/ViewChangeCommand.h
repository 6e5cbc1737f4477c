#pragma once

#include "map/ui/MapCommandBase.h"

/// Shows on the map the picture that the command's caption names: "Design View", or else the
/// survey.
class ViewChangeCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};
