#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"

class IEventManager;
class QComboBox;
class QRadioButton;

/// Chooses the zone in which survey times are shown: Beijing time, UTC or an offset in hours.
/// Spelled as registered.
class TimeZomeDlg final : public Dialog
{
    Q_OBJECT

public:
    TimeZomeDlg(QWidget* parent, IEventManager& events);

    /// Stores the choice, and has the survey table show it.
    void accept() override;

private:
    [[nodiscard]] int offsetHours() const;
    void showCurrent();

    IEventManager& m_events; // outlives the dialog
    QRadioButton* m_beijing;
    QRadioButton* m_utc;
    QRadioButton* m_custom;
    QComboBox* m_offsets;
};
