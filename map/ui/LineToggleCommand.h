#pragma once

#include "map/ui/MapCommandBase.h"

/// Shows or hides the lines of one type in the design picture.
class LineToggleCommand : public MapCommandBase
{
public:
    /// \param statusKey the system status that it flips between 1 (shown, the default) and 0
    LineToggleCommand(const char* config, IDesktopHost* host, const char* statusKey);

    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;

private:
    const char* m_statusKey;
};
