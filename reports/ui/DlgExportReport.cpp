#include "reports/ui/DlgExportReport.h"

#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/GroupedNumber.h"
#include "reports/ui/CrewPanel.h"
#include "reports/ui/PeriodPanel.h"
#include "reports/ui/ReportMemory.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

DlgExportReport::DlgExportReport(QWidget* parent, const ProjectPlace& project,
                                 const SurveyPoints& results)
    : Dialog(parent), m_project(project.folder), m_days(results),
      m_files(new ReportFilesPanel(project, this)),
      m_period(new PeriodPanel(m_days, ReportMemory::of(m_project).period, this)),
      m_crews(new CrewPanel(m_days, ReportMemory::of(m_project).leftOutSurveyors, this)),
      m_hint(new QLabel(this))
{
    setWindowTitle(tr("Export Report"));
    setMinimumSizeScaled(640, 0);
    m_hint->setObjectName(QStringLiteral("hint"));
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_hint->setMinimumHeight(2 * m_hint->fontMetrics().lineSpacing());
    auto* const selection = new QHBoxLayout;
    selection->addWidget(m_period);
    selection->addWidget(m_crews, 1);
    QVBoxLayout* const rows = makeMainLayout();
    rows->addWidget(m_files);
    rows->addLayout(selection, 1);
    addLastRow(*rows);
    connect(m_files, &ReportFilesPanel::changed, this, &DlgExportReport::judge);
    connect(m_period, &PeriodPanel::changed, this, &DlgExportReport::judge);
    connect(m_crews, &CrewPanel::changed, this, &DlgExportReport::judge);
    judge();
}

void DlgExportReport::addLastRow(QVBoxLayout& rows)
{
    auto* const buttons = new QDialogButtonBox(this);
    m_export = buttons->addButton(tr("E&xport"), QDialogButtonBox::AcceptRole);
    auto* const cancel = buttons->addButton(tr("Cance&l"), QDialogButtonBox::RejectRole);
    cancel->setAutoDefault(false);
    m_export->setDefault(true);
    m_export->setFocus();
    connect(buttons, &QDialogButtonBox::accepted, this, &DlgExportReport::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const row = new QHBoxLayout; // the one row that never scrolls
    row->addWidget(m_hint, 1);
    row->addWidget(buttons, 0, Qt::AlignBottom);
    rows.addLayout(row);
}

ReportChoice DlgExportReport::choice() const
{
    ReportChoice choice;
    m_period->apply(choice);
    m_crews->apply(choice);
    return choice;
}

QString DlgExportReport::fault() const
{
    for (const QString& fault : {m_files->fault(), m_period->fault(), m_crews->fault()}) {
        if (!fault.isEmpty())
            return fault;
    }
    return {};
}

QString DlgExportReport::notice() const
{
    std::size_t chosen = 0;
    for (const QString& surveyor : m_crews->chosen())
        chosen += m_days.count(surveyor, m_period->days());
    const QString results =
        tr("Results in the reports: %1 of %2.")
            .arg(lum::groupedNumber(chosen), lum::groupedNumber(m_days.total()));
    const QString existing = existingNotice();
    return existing.isEmpty() ? results : results + QLatin1Char('\n') + existing;
}

QString DlgExportReport::existingNotice() const
{
    const std::vector<ReportFile> chosen = files();
    const auto existing = std::count_if(chosen.begin(), chosen.end(), [](const ReportFile& file) {
        return QFileInfo::exists(file.path);
    });
    if (existing == 0)
        return {};
    return chosen.size() == 1
               ? tr("The file exists and will be replaced.")
               : tr("%1 of %2 files exist and will be replaced.").arg(existing).arg(chosen.size());
}

void DlgExportReport::judge()
{
    const QString problem = fault();
    QPalette colours = palette();
    if (!problem.isEmpty())
        colours.setColor(QPalette::WindowText, faultText(palette()));
    m_hint->setPalette(colours);
    m_hint->setText(problem.isEmpty() ? notice() : problem);
    m_export->setEnabled(problem.isEmpty());
}

void DlgExportReport::accept()
{
    judge(); // files may have come meanwhile
    if (!m_export->isEnabled())
        return;
    const QString existing = existingNotice();
    if (!existing.isEmpty() &&
        LumMessageBox::question(this, windowTitle(), existing + QLatin1Char(' ') + tr("Go on?")) !=
            LumMessageBox::Button::Yes)
        return;
    m_files->remember();
    ReportMemory& memory = ReportMemory::of(m_project);
    memory.period = m_period->choice();
    memory.leftOutSurveyors = m_crews->leftOut();
    Dialog::accept();
}
