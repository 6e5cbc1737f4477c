#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "reports/ReportInput.h"
#include "reports/ui/ReportFilesPanel.h"
#include "reports/ui/ResultDays.h"

class CrewPanel;
class PeriodPanel;
class QLabel;
class QPushButton;
class QVBoxLayout;

/// Asks which reports to write: reports and files, the period and the surveyors of the results. It
/// says while the user chooses what is wrong, how many results there are, and which files exist.
///
/// Reports and files are remembered in the settings, period and surveyors until another project is
/// open.
class DlgExportReport final : public Dialog
{
    Q_OBJECT

public:
    DlgExportReport(QWidget* parent, const ProjectPlace& project, const SurveyPoints& results);

    [[nodiscard]] std::vector<ReportFile> files() const { return m_files->files(); }
    [[nodiscard]] ReportChoice choice() const;

    /// Asks once before files are replaced, and remembers the choice.
    void accept() override;

private:
    void addLastRow(QVBoxLayout& rows);
    void judge();
    [[nodiscard]] QString fault() const;
    /// How many results there are, and which files.
    [[nodiscard]] QString notice() const;
    /// "3 of 4 files exist and will be replaced."; empty when none exists.
    [[nodiscard]] QString existingNotice() const;

    QString m_project; ///< its folder
    ResultDays m_days;
    ReportFilesPanel* m_files;
    PeriodPanel* m_period;
    CrewPanel* m_crews;
    QLabel* m_hint;
    QPushButton* m_export = nullptr;
};
