#pragma once

#include "lum_desktop_sdkx/CommandExecuterxBase.h"

/// Chooses how latitudes and longitudes are shown, by the entry's caption: "Degree Format" or
/// "Degree-minute-second Format". Checked while its format is in use.
class CoordFormatCommand final : public CommandExecuterxBase
{
public:
    using CommandExecuterxBase::CommandExecuterxBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;

private:
    [[nodiscard]] int format() const;
};
