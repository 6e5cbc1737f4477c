#pragma once

#include "map/ui/MapCommandBase.h"

/// Comes nearer.
class PPKZoomInCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};
