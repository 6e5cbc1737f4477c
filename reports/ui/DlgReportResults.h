#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "protocol/Outcome.h"
#include "reports/ui/ReportFilesPanel.h"

#include <vector>

class QGridLayout;

/// What became of a report.
struct ReportResult
{
    ReportFile file;
    Outcome outcome;
};

/// How many reports were written: "Reports written: 3 of 4."
[[nodiscard]] QString reportSentence(const std::vector<ReportResult>& results);

/// Tells of each report what it has found or why it was not written, and opens files and their
/// folder.
class DlgReportResults final : public Dialog
{
    Q_OBJECT

public:
    DlgReportResults(QWidget* parent, const std::vector<ReportResult>& results);

private:
    void addRow(QGridLayout& grid, const ReportResult& result);
    void addButtons(const QString& folder, bool isAnyWritten);
};
