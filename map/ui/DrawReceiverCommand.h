#pragma once

#include "map/ui/LineToggleCommand.h"

/// Shows or hides the receiver lines of the design.
class DrawReceiverCommand final : public LineToggleCommand
{
public:
    DrawReceiverCommand(const char* config, IDesktopHost* host);
    [[nodiscard]] QString caption() const override;
};
