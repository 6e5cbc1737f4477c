#pragma once

#include "map/ui/LineToggleCommand.h"

/// Shows or hides the source lines of the design.
class DrawExcitationCommand final : public LineToggleCommand
{
public:
    DrawExcitationCommand(const char* config, IDesktopHost* host);
    [[nodiscard]] QString caption() const override;
};
