#pragma once

#include "map/ui/MapCommandBase.h"

/// Shows the whole survey.
class PPKZoomAllCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
};
