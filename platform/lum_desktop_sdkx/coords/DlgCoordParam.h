#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/dialogs/Dialog.h"

class CoordSystemPanel;

/// Asks for a coordinate system. While there is a fault, OK selects the bad value and keeps the
/// dialog open.
class DlgCoordParam : public Dialog
{
    Q_OBJECT

public:
    DlgCoordParam(QWidget* parent, const IDictionary& parameters);

    /// As `CoordSystemPanel::parameters`.
    [[nodiscard]] basalt::Dictionary parameters();

    void accept() override;

private:
    CoordSystemPanel* m_panel;
};
