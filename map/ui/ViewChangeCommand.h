#pragma once

#include "map/ui/MapCommandBase.h"

/// Shows on the map the picture that the command's caption names: "Design View", or else the
/// survey. Checked while the map shows it.
///
/// The map stays where it is as long as something of the picture is to be seen there; else it shows
/// all of it.
class ViewChangeCommand final : public MapCommandBase
{
public:
    using MapCommandBase::MapCommandBase;
    void execute() override;
    [[nodiscard]] bool isCheckable() const override { return true; }
    [[nodiscard]] bool isChecked() const override;

private:
    /// The value of the system status "view_show_which".
    [[nodiscard]] int view() const;
};
