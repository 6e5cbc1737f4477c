#pragma once

#include "map/ui/MapCommandBase.h"

/// Shows on the map the picture that the command's caption names: "Design View", or else the
/// survey, and zooms to all of it. With "keep_place" 1 in its configuration the map stays where it
/// is, as long as something of the picture is to be seen there.
class ViewChangeCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;

private:
    [[nodiscard]] bool mayStay(IMapWindow& window) const;
};
