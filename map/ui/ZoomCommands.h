#pragma once

#include "map/ui/MapCommandBase.h"

// The commands that zoom the map about its middle or show all of it.

class PPKZoomInCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};

class PPKZoomOutCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};

/// Shows the full extent of the data.
class PPKZoomAllCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};
