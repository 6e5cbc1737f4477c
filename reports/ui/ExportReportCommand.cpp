#include "reports/ui/ExportReportCommand.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/DataProcessDataManager.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "reports/ui/DlgExportReport.h"
#include "reports/ui/DlgReportResults.h"
#include "reports/ui/ReportProgress.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>

namespace {

/// Writes under a wait cursor, until all are done or the user cancels.
std::vector<ReportResult> writeReports(IDesktopHost& host, const std::vector<ReportFile>& files,
                                       ReportChoice choice)
{
    std::vector<ReportResult> results;
    ReportProgress progress(host, static_cast<int>(files.size()));
    choice.isCancelled = [&] { return progress.isCancelled(); };
    QGuiApplication::setOverrideCursor(Qt::BusyCursor);
    for (const ReportFile& file : files) {
        Outcome outcome = Outcome::refused(QCoreApplication::translate(
            "Reports", "The report was cancelled; no file was written."));
        if (!progress.isCancelled()) {
            progress.begin(file.kind->captionText());
            DataProcessDataManager::instance().writeReport(*file.kind, file.path, choice, &outcome);
        }
        results.push_back({file, outcome});
    }
    QGuiApplication::restoreOverrideCursor();
    return results;
}

/// Lets the windows show the verdicts of checks that a report has run.
void refreshVerdicts(IDesktopHost& host, const std::vector<ReportFile>& files)
{
    if (std::none_of(files.begin(), files.end(),
                     [](const ReportFile& file) { return file.kind->runsChecks; }))
        return;
    for (const char* const event :
         {events::kRefreshDesignTable, events::kRefreshSurveyTable, events::kResurveysChecked})
        host.eventManager().publish(event, nullptr, 0);
}

} // namespace

void ExportReportCommand::execute()
{
    DlgExportReport dialog(host().dialogParent(), ProjectState::place(),
                           DataProcessDataManager::instance().surveyPoints());
    if (dialog.exec() != QDialog::Accepted)
        return;
    const std::vector<ReportResult> results = writeReports(host(), dialog.files(), dialog.choice());
    refreshVerdicts(host(), dialog.files());
    host().tell(reportSentence(results));
    DlgReportResults(host().dialogParent(), results).exec();
}
