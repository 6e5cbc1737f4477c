#include "exchange/ui/DlgCoordCompare.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/Numbers.h"
#include "exchange/CoordAgreement.h"
#include "exchange/CoordAgreementText.h"
#include "exchange/CoordCompareCsv.h"
#include "exchange/CoordCompareModel.h"
#include "exchange/CoordCompareWorkbook.h"
#include "exchange/CoordDifferences.h"
#include "exchange/ui/CoordParameterModel.h"
#include "exchange/ui/FileExports.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/ProgressReporter.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/SurveyDatabase.h"
#include "project/ui/ProjectState.h"
#include "protocol/StatusKeys.h"

#include <QCursor>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGroupBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>

#include <optional>

namespace {

constexpr int kWidth = 1460;
constexpr int kHeight = 720;
constexpr int kLeastWidth = 640;
constexpr int kLeastHeight = 420;
constexpr int kFigureGap = 28;
constexpr int kSignWidth = 30;
constexpr int kNameWidth = 380;
constexpr int kValueWidth = 380;

int degreeFormat()
{
    return get_system_status_dictionary().integer(status::kDegreeFormat);
}

QString metres(double value)
{
    return std::isfinite(value)
               ? QString::fromStdString(basalt::formatFixed(withoutMinusZero(value), 3))
               : QStringLiteral("\u2013");
}

QLabel* textLabel(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

QVBoxLayout* areaRows(const QString& title, QSplitter& areas)
{
    auto* const area = new QGroupBox(title, &areas);
    auto* const rows = new QVBoxLayout(area);
    const int margin = dpi_scaled(6);
    rows->setContentsMargins(margin, margin, margin, margin);
    return rows;
}

/// Gives a table its menu.
void addCopying(CustomTableWidget& table)
{
    auto* const menu = new QMenu(&table);
    menu->addAction(
        DlgCoordCompare::tr("&Copy"), &table, [&table] { table.copySelection(); },
        QKeySequence::Copy);
    menu->addAction(
        DlgCoordCompare::tr("Copy with &Headings"), &table,
        [&table] { table.copySelection(CustomTableWidget::Captions::With); },
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    QObject::connect(
        &table, &CustomTableWidget::contextMenuRequestedAt, menu,
        [menu](const QModelIndex& /*index*/, const QPoint& place) { menu->popup(place); });
}

/// Takes away the cursor that is set for the whole program, and sets it again at its end.
class UsualCursor
{
public:
    UsualCursor()
    {
        if (const QCursor* const set = QGuiApplication::overrideCursor()) {
            m_set = *set;
            QGuiApplication::restoreOverrideCursor();
        }
    }
    ~UsualCursor()
    {
        if (m_set)
            QGuiApplication::setOverrideCursor(*m_set);
    }
    UsualCursor(const UsualCursor&) = delete;
    UsualCursor& operator=(const UsualCursor&) = delete;

private:
    std::optional<QCursor> m_set;
};

} // namespace

DlgCoordCompare::DlgCoordCompare(IDesktopHost& host, const QString& path,
                                 const IDictionary& current, SurveyRecords other)
    : Dialog(host.dialogParent()), m_host(host), m_path(path),
      m_comparison(current, other.coordParameters, std::move(other.records))
{
    setObjectName(QStringLiteral("DlgCoordCompare"));
    setWindowTitle(tr("Coordinate Comparison"));
    auto* const parameters = new CoordParameterModel(current, other.coordParameters, this);
    auto* const rows = makeMainLayout();
    addHead(parameters->differenceCount(), *rows);
    auto* const areas = new QSplitter(Qt::Vertical, this);
    areas->setChildrenCollapsible(false);
    addParameters(parameters, *areas);
    addTable(*areas);
    areas->setStretchFactor(0, 2);
    areas->setStretchFactor(1, 3);
    rows->addWidget(areas, 1);
    addFigures(lum::toQString(lum::symbolOf(lum::lengthUnitOf(current))), *rows);
    addSentence(current, other.coordParameters, *rows);
    addButtons(*rows);
    setMinimumSizeScaled(kLeastWidth, kLeastHeight);
    resize(dpi_scaled(kWidth), dpi_scaled(kHeight));
    rememberSize(QStringLiteral("DlgCoordCompare"));
}

void DlgCoordCompare::tell(IDesktopHost& host, const QString& path, SurveyRecords other)
{
    DlgCoordCompare dialog(host, path, get_project_coord_transform().parameters(),
                           std::move(other));
    const UsualCursor cursor;
    dialog.exec();
}

void DlgCoordCompare::addHead(int differences, QVBoxLayout& rows)
{
    auto* const icon = new QLabel(this);
    const int size = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
    icon->setPixmap(
        style()->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this).pixmap(size, size));
    auto* const text = textLabel(
        tr("Nothing was imported from \"%1\": its coordinate system is not the project's. "
           "Parameters that differ: %2.")
            .arg(QFileInfo(m_path).fileName(), QString::number(differences)),
        this);
    text->setObjectName(QStringLiteral("head"));
    text->setWordWrap(true);
    text->setToolTip(m_path.toHtmlEscaped());
    auto* const row = new QHBoxLayout;
    row->addWidget(icon);
    row->addWidget(text, 1);
    rows.addLayout(row);
}

void DlgCoordCompare::addParameters(CoordParameterModel* parameters, QSplitter& areas)
{
    auto* const table = new CustomTableWidget(&areas);
    table->setObjectName(QStringLiteral("parameters"));
    table->setModel(parameters);
    addCopying(*table);
    QHeaderView& header = *table->horizontalHeader();
    header.resizeSection(CoordParameterModel::Sign, dpi_scaled(kSignWidth));
    header.resizeSection(CoordParameterModel::Parameter, dpi_scaled(kNameWidth));
    header.resizeSection(CoordParameterModel::FileSystem, dpi_scaled(kValueWidth));
    header.setStretchLastSection(true);
    areaRows(tr("Coord Params"), areas)->addWidget(table);
}

void DlgCoordCompare::addTable(QSplitter& areas)
{
    m_table = new CustomTableWidget(&areas);
    m_table->setObjectName(QStringLiteral("rows"));
    m_table->setModel(
        new CoordCompareModel(m_comparison, degreeFormat(), faultBackground(), m_table));
    addCopying(*m_table);
    areaRows(tr("Data Table"), areas)->addWidget(m_table);
}

/// Mean, standard deviation, RMS and maximum of the three differences.
void DlgCoordCompare::addFigures(const QString& unit, QVBoxLayout& rows)
{
    const DifferenceFigures figures = differenceFigures(m_comparison.pairs());
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(dpi_scaled(kFigureGap));
    grid->setVerticalSpacing(dpi_scaled(2));
    const auto add = [&](int row, int column, QLabel* label) {
        grid->addWidget(label, row, column,
                        Qt::AlignVCenter | (column == 0 ? Qt::AlignLeft : Qt::AlignRight));
    };
    const QString captions[] = {tr("Results compared: %1").arg(lum::groupedNumber(figures.count)),
                                tr("Mean"),
                                tr("Standard Deviation"),
                                tr("RMS"),
                                tr("Maximum"),
                                tr("At Line / Point")};
    for (int column = 0; column < int(std::size(captions)); ++column)
        add(0, column, textLabel(captions[column], this));
    const std::pair<QString, const AxisFigures&> axes[] = {
        {tr("North Diff (%1)").arg(unit), figures.north},
        {tr("East Diff (%1)").arg(unit), figures.east},
        {tr("Height Diff (m)"), figures.height}};
    for (int row = 1; row <= int(std::size(axes)) && figures.count != 0; ++row) {
        const auto& [caption, axis] = axes[row - 1];
        add(row, 0, textLabel(caption, this));
        add(row, 1, textLabel(metres(axis.mean), this));
        add(row, 2, textLabel(metres(axis.deviation), this));
        add(row, 3, textLabel(metres(axis.rms), this));
        add(row, 4, textLabel(metres(axis.largest), this));
        add(row, 5, placeLabel(axis));
    }
    grid->setColumnStretch(int(std::size(captions)), 1);
    rows.addLayout(grid);
}

/// The point of a maximum; a click shows its row.
QLabel* DlgCoordCompare::placeLabel(const AxisFigures& figures)
{
    const SurveyPoint& record = m_comparison.record(figures.largestRow);
    const QString name = QStringLiteral("%1 / %2").arg(lum::toQString(record.lineNumber),
                                                       lum::toQString(record.pointNumber));
    auto* const label = new QLabel(this);
    label->setTextFormat(Qt::RichText);
    label->setText(
        QStringLiteral("<a href=\"%1\">%2</a>").arg(figures.largestRow).arg(name.toHtmlEscaped()));
    label->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    label->setToolTip(tr("Show the row of this point"));
    connect(label, &QLabel::linkActivated, m_table,
            [this](const QString& row) { m_table->showRow(row.toInt()); });
    return label;
}

void DlgCoordCompare::addSentence(const IDictionary& current, const IDictionary& file,
                                  QVBoxLayout& rows)
{
    const QString text =
        agreementText(m_comparison, coordAgreement(m_comparison.pairs()), current, file);
    auto* const sentence = textLabel(text.section(QLatin1Char('\n'), 0, 0), this);
    sentence->setObjectName(QStringLiteral("sentence"));
    sentence->setWordWrap(true);
    QFont bold = sentence->font();
    bold.setBold(true);
    sentence->setFont(bold);
    rows.addWidget(sentence);
    if (!text.contains(QLatin1Char('\n')))
        return;
    auto* const exceptions = textLabel(text.section(QLatin1Char('\n'), 1), this);
    exceptions->setObjectName(QStringLiteral("exceptions"));
    exceptions->setWordWrap(true);
    rows.addWidget(exceptions);
}

void DlgCoordCompare::addButtons(QVBoxLayout& rows)
{
    static constexpr Form kExcel{"*.xlsx", QT_TR_NOOP("Export To Excel Success!"),
                                 QT_TR_NOOP("Export To Excel Failed!"), writeCoordCompareWorkbook};
    static constexpr Form kCsv{"*.csv", QT_TR_NOOP("Export To Csv Success!"),
                               QT_TR_NOOP("Export To Csv Failed!"), writeCoordCompareCsv};
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto add = [&](const QString& text, const Form& form) {
        auto* const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, &form] { exportAs(form); });
    };
    add(tr("Export To Excel"), kExcel);
    add(tr("Export To Csv"), kCsv);
    QPushButton& close = *buttons->button(QDialogButtonBox::Close);
    close.setDefault(true);
    close.setFocus();
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    rows.addWidget(buttons);
}

void DlgCoordCompare::exportAs(const Form& form)
{
    const QString path =
        FileDialog::getSaveFileName(this, tr("Get Save File Name"), QLatin1String(form.filter));
    if (path.isEmpty())
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    Outcome outcome = checkNotOwn(ProjectState::place(), path);
    if (outcome.isDone() && QFileInfo::exists(path) && QFileInfo(path) == QFileInfo(m_path))
        outcome = Outcome::refused(tr("\"%1\" is the database that is compared.").arg(path));
    if (outcome.isDone()) {
        ProgressReporter progress(&m_host.eventManager());
        outcome = form.write(path, m_comparison, degreeFormat(), progress);
    }
    QGuiApplication::restoreOverrideCursor();
    if (outcome.isDone()) {
        FileExports::offerToOpen(this, path, tr(form.success), tr("Open the file?"));
        return;
    }
    basalt::logError(outcome.detail());
    LumMessageBox::error(this, tr("Fail"), tr(form.failure), outcome.text());
}
