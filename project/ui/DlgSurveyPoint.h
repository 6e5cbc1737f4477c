#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "model/PointName.h"
#include "model/SurveyPoint.h"
#include "project/PointCorrection.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
struct PropertyGridInput;

/// Edits line number, point number, antenna height and remarks of one survey result. OK writes them
/// through the data manager; what cannot be is told, and the dialog stays open. It is accepted only
/// when something has changed; announcing that is the caller's task.
class DlgSurveyPoint final : public Dialog
{
    Q_OBJECT

public:
    DlgSurveyPoint(QWidget* parent, const PointName& point);

    /// The result's name, which OK may have changed.
    [[nodiscard]] const PointName& point() const { return m_point; }

    void accept() override;

private:
    void showPoint();
    void showMissing();
    void showHeights();
    [[nodiscard]] QString heightsText(double antennaHeightM) const;
    [[nodiscard]] PropertyGridInput antennaInput() const;
    [[nodiscard]] SurveyCorrection correction() const;
    void refuse(const CorrectionFault& fault);
    [[nodiscard]] bool mayReplace(const SurveyCorrection& correction);

    PointName m_point;
    SurveyPoint m_before; ///< the result as it was found
    QLineEdit* m_lineNumber;
    QLineEdit* m_pointNumber;
    QLineEdit* m_antenna;
    QCheckBox* m_movesHeights;
    QLabel* m_heights;
    QLineEdit* m_remarks;
    QPushButton* m_ok = nullptr;
};
