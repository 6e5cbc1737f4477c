#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "model/PointName.h"

/// Edits line number, point number, antenna height and remarks of one survey result. OK writes them
/// through the data manager.
class DlgSurveyPoint final : public Dialog
{
    Q_OBJECT

public:
    DlgSurveyPoint(QWidget* parent, const PointName& point);

    /// The result's name, which OK may have changed.
    [[nodiscard]] const PointName& point() const { return m_point; }

private:
    PointName m_point;
};
