#pragma once

#include "map/ui/MapCommandBase.h"

/// Steps back.
class PPKZoomOutCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};
