#include "map/ui/DlgPrintMap.h"

#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/SheetFile.h"
#include "map/sheet/SheetLayout.h"
#include "map/ui/SheetPreview.h"
#include "map/ui/SheetPrinter.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QEventLoop>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <cmath>

namespace {

// settings
constexpr const char* kPaper = "print_paper";
constexpr const char* kLandscape = "print_landscape";
constexpr const char* kDpi = "print_dpi";

constexpr int kUsualDpi = 300;

QString paperText(const Paper& paper)
{
    return QStringLiteral("%1  (%2 × %3 mm)")
        .arg(QLatin1String(paper.name), QString::number(paper.widthMm),
             QString::number(paper.heightMm));
}

void setNumbers(QSpinBox& box, double least, double most)
{
    box.setRange(static_cast<int>(least), static_cast<int>(most));
    box.setLocale(QLocale::English); // grouped alike on every desktop
    box.setGroupSeparatorShown(true);
}

} // namespace

DlgPrintMap::DlgPrintMap(IDesktopHost& host, MapSheet sheet, const QRectF& view)
    : Dialog(host.dialogParent()), m_host(host), m_sheet(std::move(sheet)),
      m_whole(m_sheet.setup.area), m_view(view), m_preview(new SheetPreview(this)),
      m_paper(new ChoiceBox(this)), m_orientation(new ChoiceBox(this)), m_area(new ChoiceBox(this)),
      m_fits(new QCheckBox(tr("&Fit the area"), this)), m_scale(new QSpinBox(this)),
      m_dpi(new QSpinBox(this)), m_title(new QLineEdit(m_sheet.setup.title, this)),
      m_hint(new QLabel(this))
{
    setWindowTitle(tr("Print / Export Map"));
    setMinimumSizeScaled(820, 480);
    auto* const form = new QFormLayout;
    addFields(*form);
    auto* const side = new QVBoxLayout;
    side->addLayout(form);
    m_hint->setWordWrap(true);
    m_hint->setTextFormat(Qt::PlainText);
    m_hint->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_hint->setMinimumHeight(3 * m_hint->fontMetrics().lineSpacing());
    side->addWidget(m_hint);
    side->addStretch();
    auto* const both = new QHBoxLayout;
    both->addWidget(m_preview, 1);
    both->addLayout(side);
    makeMainLayout()->addLayout(both, 1);
    addButtons();
    recall();
    rememberSize(QStringLiteral("print map"));
    follow();
    m_save->setFocus();
}

DlgPrintMap::~DlgPrintMap()
{
    hide(); // a number that is being typed is taken now, while all is there
}

void DlgPrintMap::addFields(QFormLayout& form)
{
    for (const Paper& paper : papers())
        m_paper->addItem(paperText(paper));
    m_orientation->addItems({tr("Portrait"), tr("Landscape")});
    m_area->addItems({tr("All points"), tr("What the map shows")});
    setNumbers(*m_scale, kLeastScale, kMostScale);
    m_scale->setPrefix(QStringLiteral("1:"));
    setNumbers(*m_dpi, kLeastDpi, kMostDpi);
    m_dpi->setToolTip(tr("How sharp the map is: dots to an inch"));
    m_dpi->setSuffix(tr(" dpi"));
    m_fits->setChecked(true);
    m_fits->setToolTip(tr("The largest round scale at which the whole area is seen"));
    m_title->setMinimumWidth(dpi_scaled(220));
    form.addRow(tr("&Title:"), m_title);
    form.addRow(tr("&Paper:"), m_paper);
    form.addRow(tr("&Orientation:"), m_orientation);
    form.addRow(tr("&Area:"), m_area);
    form.addRow(tr("&Scale:"), m_scale);
    form.addRow(QString(), m_fits);
    form.addRow(tr("&Resolution:"), m_dpi);
    for (ChoiceBox* const box : {m_paper, m_orientation, m_area})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
                &DlgPrintMap::follow);
    for (QSpinBox* const box : {m_scale, m_dpi})
        connect(box, QOverload<int>::of(&QSpinBox::valueChanged), this, &DlgPrintMap::follow);
    connect(m_fits, &QCheckBox::toggled, this, &DlgPrintMap::follow);
    connect(m_title, &QLineEdit::textChanged, this, &DlgPrintMap::follow);
}

void DlgPrintMap::addButtons()
{
    auto* const buttons = new QDialogButtonBox(this);
    m_save = buttons->addButton(tr("Sa&ve As..."), QDialogButtonBox::ActionRole);
    m_save->setToolTip(tr("Write a PDF file, a picture (PNG), or a GeoTIFF of the map alone"));
    m_print = buttons->addButton(tr("Pri&nt..."), QDialogButtonBox::ActionRole);
    auto* const close = buttons->addButton(tr("&Close"), QDialogButtonBox::RejectRole);
    for (QPushButton* const button : {m_print, close})
        button->setAutoDefault(false);
    m_save->setDefault(true);
    m_print->setEnabled(!QPrinterInfo::availablePrinterNames().isEmpty());
    if (!m_print->isEnabled())
        m_print->setToolTip(tr("This computer has no printer"));
    connect(m_save, &QPushButton::clicked, this, &DlgPrintMap::saveAs);
    connect(m_print, &QPushButton::clicked, this, &DlgPrintMap::print);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout()->addWidget(buttons);
}

void DlgPrintMap::recall()
{
    const IDictionary& kept = get_system_ini_parameter().dictionary();
    const bool isWide = m_whole.width() > m_whole.height();
    const Paper* const paper = findPaper(lum::toQString(kept.text(kPaper)));
    const QSignalBlocker blockers[] = {QSignalBlocker(m_paper), QSignalBlocker(m_orientation),
                                       QSignalBlocker(m_dpi)};
    m_paper->setCurrentIndex(paper != nullptr ? static_cast<int>(paper - papers().data()) : 0);
    m_orientation->setCurrentIndex(kept.integer(kLandscape, isWide ? 1 : 0) != 0 ? 1 : 0);
    m_dpi->setValue(kept.integer(kDpi, kUsualDpi));
}

void DlgPrintMap::remember() const
{
    SystemParameter& kept = get_system_ini_parameter();
    kept.dictionary().set(kPaper, m_sheet.setup.paper.name);
    kept.dictionary().set(kLandscape, m_sheet.setup.isLandscape ? "1" : "0");
    kept.dictionary().set(kDpi, std::to_string(m_dpi->value()));
    kept.save(); // logs a failure; the choice then holds for this session
}

void DlgPrintMap::follow()
{
    SheetSetup& setup = m_sheet.setup;
    setup.paper = papers()[static_cast<std::size_t>(std::max(0, m_paper->currentIndex()))];
    setup.isLandscape = m_orientation->currentIndex() == 1;
    setup.area = m_area->currentIndex() == 1 ? m_view : m_whole;
    setup.title = m_title->text();
    setup.dpi = m_dpi->value();
    m_scale->setEnabled(!m_fits->isChecked());
    setup.scale.reset();
    if (!m_fits->isChecked())
        setup.scale = m_scale->value();
    const SheetLayout layout(setup);
    if (m_fits->isChecked()) { // a number that is being typed stays as it is
        const QSignalBlocker blocker(m_scale);
        m_scale->setValue(static_cast<int>(std::lround(layout.scale)));
    }
    m_hint->setText(partNotice(layout));
    m_preview->setSheet(m_sheet);
}

void DlgPrintMap::saveAs()
{
    const QString path = FileDialog::getSaveFileName(
        this, windowTitle(),
        tr("PDF file(*.pdf);;Picture(*.png);;GeoTIFF of the map alone(*.tif *.tiff)"));
    if (path.isEmpty())
        return;
    run(tr("Writing the map..."),
        [sheet = m_sheet, path](SheetWatch& watch) { return writeSheet(sheet, path, watch); });
}

void DlgPrintMap::print()
{
    QPrinter printer(QPrinter::HighResolution);
    setPaper(printer, m_sheet);
    QPrintDialog dialog(&printer, this);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
    dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
    if (dialog.exec() != QDialog::Accepted)
        return;
    setPaper(printer, m_sheet); // the sheet was laid out for this paper, not for another one
    run(tr("Printing the map..."), [sheet = m_sheet, &printer](SheetWatch& watch) {
        return printSheet(printer, sheet, watch);
    });
}

void DlgPrintMap::run(const QString& caption, const std::function<Outcome(SheetWatch&)>& work)
{
    m_preview->stop();
    setEnabled(false); // also while a cancelled job comes to its end
    Outcome outcome = Outcome::failed(tr("The map could not be made; the log tells why."));
    QProgressDialog progress(caption, tr("&Cancel"), 0, 100, this);
    progress.setWindowTitle(windowTitle());
    progress.setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    progress.setWindowModality(Qt::ApplicationModal);
    progress.setMinimumDuration(0);
    progress.setMinimumWidth(dpi_scaled(360));
    progress.setAutoClose(false);
    progress.setAutoReset(false);
    progress.show();
    {
        QEventLoop loop;
        SheetWork thread;
        connect(&thread, &SheetWork::finished, &loop, &QEventLoop::quit);
        connect(&thread, &SheetWork::progressed, &progress, &QProgressDialog::setValue);
        connect(&progress, &QProgressDialog::canceled, &thread, [&] {
            m_hint->setText(tr("Cancelling..."));
            thread.cancel();
        });
        thread.start([&](SheetWatch& watch) { outcome = work(watch); });
        loop.exec();
    }
    progress.hide();
    setEnabled(true);
    m_save->setFocus();
    tell(outcome);
}

void DlgPrintMap::tell(const Outcome& outcome)
{
    if (!outcome.isDone()) {
        if (outcome.kind() == Outcome::Kind::Failed)
            LumMessageBox::error(this, windowTitle(), outcome.text());
        else
            m_hint->setText(outcome.text());
        m_preview->setSheet(m_sheet);
        return;
    }
    remember();
    QStringList notices = outcome.text().split(QLatin1Char('\n'));
    const QString sentence = notices.takeFirst();
    notices.removeAll(m_hint->text()); // the user has read it
    m_host.tell(sentence);
    if (!notices.isEmpty())
        LumMessageBox::information(this, windowTitle(), sentence, LumMessageBox::Button::Ok,
                                   notices.join(QLatin1Char('\n')));
    accept();
}
