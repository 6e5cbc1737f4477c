#include "project/ui/DlgSurveyPoint.h"

#include "basalt_utilities/Numbers.h"
#include "exchange/ShownTimes.h"
#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "lum_desktop_sdkx/controls/PropertyGridLayout.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_sdk/DpiScale.h"
#include "model/PointNumber.h"
#include "project/DataProcessDataManager.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int kStoredDecimals = 4;
constexpr int kWidth = 420;

QString shown(const std::string& text)
{
    return QString::fromStdString(text);
}

/// What was typed when that differs from the text that was shown; nothing else.
std::optional<std::string> edited(const QLineEdit& edit, const QString& before)
{
    const QString text = edit.text().trimmed();
    if (edit.text() == before || text == before)
        return {};
    return text.toStdString();
}

QString writtenNumber(const PointName& name)
{
    return shown(std::string(writtenPointNumber(name.point)));
}

/// One height, before and after.
QString moved(const QString& caption, double before, double after)
{
    return caption.arg(shown(basalt::formatFixed(before, kStoredDecimals)),
                       shown(basalt::formatFixed(after, kStoredDecimals)));
}

} // namespace

DlgSurveyPoint::DlgSurveyPoint(QWidget* parent, const PointName& point)
    : Dialog(parent), m_point(point), m_lineNumber(new QLineEdit(this)),
      m_pointNumber(new QLineEdit(this)), m_antenna(new QLineEdit(this)),
      m_movesHeights(new QCheckBox(tr("&Move the heights by the difference"), this)),
      m_heights(new QLabel(this)), m_remarks(new QLineEdit(this))
{
    setWindowTitle(tr("Modify Survey Result"));
    setMinimumSizeScaled(kWidth, 0);
    m_heights->setTextFormat(Qt::PlainText);
    m_heights->setWordWrap(true);
    m_heights->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_movesHeights->setToolTip(tr("A pole that is higher than the crew has typed makes the point "
                                  "lower by as much."));
    m_movesHeights->setChecked(true);

    auto* const antenna = new QHBoxLayout;
    antenna->addWidget(m_antenna, 1);
    antenna->addWidget(new QLabel(tr("m"), this));
    auto* const form = new QFormLayout;
    form->addRow(tr("&Line:"), m_lineNumber);
    form->addRow(tr("&Point:"), m_pointNumber);
    form->addRow(tr("&Antenna height:"), antenna);
    form->addRow(QString(), m_movesHeights);
    form->addRow(QString(), m_heights);
    form->addRow(tr("&Remarks:"), m_remarks);
    qobject_cast<QLabel*>(form->labelForField(antenna))->setBuddy(m_antenna);

    auto* const buttons = new QDialogButtonBox(this);
    m_ok = buttons->addButton(tr("OK"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &DlgSurveyPoint::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_antenna, &QLineEdit::textChanged, this, &DlgSurveyPoint::showHeights);
    connect(m_movesHeights, &QCheckBox::toggled, this, &DlgSurveyPoint::showHeights);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(buttons);
    showPoint();
}

void DlgSurveyPoint::showPoint()
{
    const SurveyPoint* const found =
        DataProcessDataManager::instance().surveyPoints().find(m_point.line, m_point.point);
    if (found == nullptr) {
        showMissing();
        return;
    }
    m_before = *found;
    m_lineNumber->setText(shown(m_point.line));
    m_pointNumber->setText(writtenNumber(m_point));
    m_antenna->setText(shown(basalt::formatShortest(m_before.antennaHeight)));
    m_remarks->setText(shown(m_before.remarks));
    for (QLineEdit* edit : {m_lineNumber, m_pointNumber, m_remarks})
        edit->setCursorPosition(0);
    m_heights->setText(heightsText(m_before.antennaHeight)); // what needs most room
    m_heights->setMinimumHeight(m_heights->heightForWidth(dpi_scaled(kWidth)));
    showHeights();
    m_antenna->setFocus(); // what is mostly wrong
    m_antenna->selectAll();
}

void DlgSurveyPoint::showMissing()
{
    m_heights->setText(
        tr("Line %1 has no point %2 any more.").arg(shown(m_point.line), writtenNumber(m_point)));
    for (QWidget* each : std::initializer_list<QWidget*>{m_lineNumber, m_pointNumber, m_antenna,
                                                         m_movesHeights, m_remarks, m_ok})
        each->setEnabled(false);
}

PropertyGridInput DlgSurveyPoint::antennaInput() const
{
    PropertyGridRow row;
    row.editor = PropertyGridRow::Editor::Number;
    row.unit = tr("m");
    row.minimum = -kMostAntennaHeightM;
    row.maximum = kMostAntennaHeightM;
    row.decimals = kStoredDecimals;
    return readPropertyGridInput(row, m_antenna->text());
}

SurveyCorrection DlgSurveyPoint::correction() const
{
    SurveyCorrection correction;
    correction.lineNumber = edited(*m_lineNumber, shown(m_point.line));
    correction.pointNumber = edited(*m_pointNumber, writtenNumber(m_point));
    correction.remarks = edited(*m_remarks, shown(m_before.remarks));
    correction.movesHeights = m_movesHeights->isChecked();
    const QString before = shown(basalt::formatShortest(m_before.antennaHeight));
    if (!edited(*m_antenna, before))
        return correction;
    const PropertyGridInput input = antennaInput();
    const double height = input.fault.isEmpty() ? input.value.toDouble() : std::nan("");
    if (height != m_before.antennaHeight)
        correction.antennaHeightM = height;
    return correction;
}

void DlgSurveyPoint::showHeights()
{
    const auto height = correction().antennaHeightM;
    const bool isOther = height && std::isfinite(*height);
    m_movesHeights->setEnabled(isOther);
    if (!isOther || !m_movesHeights->isChecked()) {
        m_heights->setText(tr("The heights stay as they are."));
        return;
    }
    m_heights->setText(heightsText(*height));
}

QString DlgSurveyPoint::heightsText(double antennaHeightM) const
{
    const PointHeights before(m_before);
    const PointHeights after = movedHeights(m_before, antennaHeightM);
    return QStringList{moved(tr("Elevation %1 → %2 m"), before.elevation, after.elevation),
                       moved(tr("Altitude %1 → %2 m"), before.altitude, after.altitude),
                       moved(tr("Sea height %1 → %2 m"), before.seaHeight, after.seaHeight)}
        .join(QLatin1Char('\n'));
}

void DlgSurveyPoint::accept()
{
    const SurveyCorrection wanted = correction();
    const bool isChange =
        wanted.lineNumber || wanted.pointNumber || wanted.antennaHeightM || wanted.remarks;
    if (!isChange) {
        reject();
        return;
    }
    if (const auto fault = faultOf(wanted)) {
        refuse(*fault);
        return;
    }
    if (!mayReplace(wanted))
        return;
    Outcome outcome = Outcome::done();
    if (DataProcessDataManager::instance().correctSurveyPoint(m_point, wanted, &outcome,
                                                              &m_point) == 0) {
        LumMessageBox::error(this, tr("Error"), outcome.text());
        reject();
        return;
    }
    Dialog::accept();
}

void DlgSurveyPoint::refuse(const CorrectionFault& fault)
{
    using Field = CorrectionFault::Field;
    QString reason = fault.text;
    QLineEdit* field = m_remarks;
    if (fault.field == Field::LineNumber)
        field = m_lineNumber;
    else if (fault.field == Field::PointNumber)
        field = m_pointNumber;
    else if (fault.field == Field::AntennaHeight) {
        field = m_antenna;
        if (const QString typed = antennaInput().fault; !typed.isEmpty())
            reason = tr("Antenna height: %1").arg(typed);
    }
    LumMessageBox::error(this, tr("Error"), tr("Input Correct Param!"), reason);
    field->setFocus();
    field->selectAll();
}

bool DlgSurveyPoint::mayReplace(const SurveyCorrection& correction)
{
    const SurveyPoint* const other =
        replacedBy(DataProcessDataManager::instance().surveyPoints(), m_point, correction);
    if (other == nullptr)
        return true;
    QString details = tr("Line %1, point %2, measured %3, would be replaced.")
                          .arg(shown(other->lineNumber), shown(other->pointNumber),
                               shown(shownTime(other->dateTime)));
    if (!other->surveyor.empty())
        details += QLatin1Char('\n') + tr("Its surveyor: %1").arg(shown(other->surveyor));
    const auto answer = LumMessageBox::warning(
        this, tr("Warning"), tr("New Point Name Exist, Want to Overload?"),
        LumMessageBox::Buttons(LumMessageBox::Button::Yes) | LumMessageBox::Button::No, details);
    if (answer == LumMessageBox::Button::Yes)
        return true;
    m_pointNumber->setFocus();
    return false;
}
