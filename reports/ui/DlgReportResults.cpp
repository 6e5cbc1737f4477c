#include "reports/ui/DlgReportResults.h"

#include "exchange/ui/FileExports.h"
#include "lum_sdk/DpiScale.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidth = 620;

QLabel* plainLabel(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

bool isWritten(const ReportResult& result)
{
    return result.outcome.isDone();
}

} // namespace

QString reportSentence(const std::vector<ReportResult>& results)
{
    return QCoreApplication::translate("DlgReportResults", "Reports written: %1 of %2.")
        .arg(std::count_if(results.begin(), results.end(), isWritten))
        .arg(results.size());
}

DlgReportResults::DlgReportResults(QWidget* parent, const std::vector<ReportResult>& results)
    : Dialog(parent)
{
    setWindowTitle(tr("Export Report"));
    const QString folder = QFileInfo(results.front().file.path).absolutePath();
    auto* const rows = makeMainLayout();
    rows->addWidget(
        plainLabel(reportSentence(results) + QLatin1Char('\n') +
                       tr("Their folder: \"%1\".").arg(QDir::toNativeSeparators(folder)),
                   this));
    auto* const grid = new QGridLayout;
    grid->setColumnStretch(1, 1);
    grid->setVerticalSpacing(dpi_scaled(10));
    for (const ReportResult& result : results)
        addRow(*grid, result);
    rows->addLayout(grid);
    rows->addStretch();
    addButtons(folder, std::any_of(results.begin(), results.end(), isWritten));
    const int width = std::max(dpi_scaled(kWidth), sizeHint().width());
    resize(width, layout()->totalHeightForWidth(width)); // the lines of text break
}

void DlgReportResults::addRow(QGridLayout& grid, const ReportResult& result)
{
    const int row = grid.rowCount();
    const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    auto* const icon = new QLabel(this);
    icon->setPixmap(style()
                        ->standardIcon(isWritten(result) ? QStyle::SP_DialogApplyButton
                                                         : QStyle::SP_MessageBoxCritical)
                        .pixmap(size));
    const QString path = result.file.path;
    auto* const text =
        plainLabel(QFileInfo(path).fileName() + QLatin1Char('\n') + result.outcome.text(), this);
    text->setObjectName(QLatin1String(result.file.kind->name));
    grid.addWidget(icon, row, 0, Qt::AlignTop);
    grid.addWidget(text, row, 1, Qt::AlignTop);
    if (!isWritten(result))
        return;
    auto* const open = new QPushButton(tr("Open (&%1)").arg(row), this);
    open->setToolTip(tr("Open \"%1\"").arg(QDir::toNativeSeparators(path)));
    open->setAutoDefault(false);
    connect(open, &QPushButton::clicked, this, [this, path] { FileExports::open(this, path); });
    grid.addWidget(open, row, 2, Qt::AlignTop);
}

void DlgReportResults::addButtons(const QString& folder, bool isAnyWritten)
{
    auto* const buttons = new QDialogButtonBox(this);
    auto* const close = buttons->addButton(tr("&Close"), QDialogButtonBox::RejectRole);
    if (isAnyWritten) {
        auto* const open = buttons->addButton(tr("Open &Folder"), QDialogButtonBox::ActionRole);
        open->setAutoDefault(false);
        connect(open, &QPushButton::clicked, this,
                [this, folder] { FileExports::open(this, folder); });
    }
    close->setDefault(true);
    close->setFocus();
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}
