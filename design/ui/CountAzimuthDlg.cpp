#include "design/ui/CountAzimuthDlg.h"

#include "design/Azimuth.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICommandExecuterx.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/coords/ShownUnit.h"
#include "lum_sdk/events/EventNames.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr std::size_t kStart = 0; // of the coordinates
constexpr std::size_t kDestination = 2;
constexpr int kNoteLines = 2;
const QString kWidest = QStringLiteral("-5000000.0000 "); // of the usual coordinates

QString designCommand()
{
    return QStringLiteral("Generate Lines");
}

/// All digits that matter, without an exponent.
QString coordinateText(double value)
{
    return QString::number(value, 'f', QLocale::FloatingPointShortest);
}

bool isBlank(const QLineEdit* edit)
{
    return edit->text().trimmed().isEmpty();
}

} // namespace

CountAzimuthDlg::CountAzimuthDlg(IDesktopHost& host)
    : Dialog(host.dialogParent()), m_host(host), m_azimuth(new QLineEdit(this)),
      m_length(new QLineEdit(this)), m_unit(new QLabel(this)), m_note(new QLabel(this)),
      m_pick(host, this),
      m_subscription(*this, lum::eventNames({events::kUpdateSystemStatus, events::kProjectChanged}),
                     host.eventManager())
{
    setWindowTitle(tr("Calculate Azimuth"));
    auto* const places = new QHBoxLayout;
    places->addWidget(makePlace(tr("StartPoint"), kStart));
    places->addWidget(makePlace(tr("DestPoint"), kDestination));
    QVBoxLayout* const rows = makeMainLayout();
    rows->addLayout(places);
    rows->addWidget(makePick(tr("Pick &Both on the Map"), kStart, 2));
    rows->addWidget(makeType());
    rows->addLayout(makeResult());
    rows->addWidget(m_note);
    rows->addLayout(makeButtons());
    connect(&m_pick, &PlacePick::picked, this, &CountAzimuthDlg::takePlaces);
    connect(&m_pick, &PlacePick::ended, this, [this] {
        for (QPushButton* const button : m_picks)
            button->setChecked(false);
    });
    orderTabs();
    m_coordinates[kStart]->setFocus();
    showState();
    moveIntoCorner();
}

// --- widgets ---

QGroupBox* CountAzimuthDlg::makePlace(const QString& title, std::size_t first)
{
    auto* const group = new QGroupBox(title, this);
    auto* const form = new QFormLayout(group);
    for (const std::size_t coordinate : {first, first + 1}) {
        auto* const edit = new QLineEdit(group);
        edit->setMinimumWidth(edit->fontMetrics().horizontalAdvance(kWidest));
        connect(edit, &QLineEdit::textChanged, this, &CountAzimuthDlg::onInput);
        m_coordinates.at(coordinate) = edit;
        form->addRow(coordinate == first ? tr("N") : tr("E"), edit);
    }
    form->addRow(
        QString(),
        makePick(first == kStart ? tr("Pick on the &Map") : tr("Pick &on the Map"), first, 1));
    m_places.at(first / 2) = group;
    return group;
}

QPushButton* CountAzimuthDlg::makePick(const QString& text, std::size_t first, int clicks)
{
    auto* const button = new QPushButton(text, this);
    button->setAutoDefault(false);
    button->setCheckable(true);
    button->setToolTip(clicks == 1 ? tr("Click a place or a point on the map")
                                   : tr("Click the start, then the destination on the map"));
    connect(button, &QPushButton::clicked, this,
            [this, button, first, clicks] { pick(button, first, clicks); });
    m_picks.push_back(button);
    return button;
}

QGroupBox* CountAzimuthDlg::makeType()
{
    auto* const group = new QGroupBox(tr("Azimuth Type"), this);
    auto* const row = new QHBoxLayout(group);
    m_dms = new QRadioButton(tr("度分秒(dd.mmss)"), group);
    auto* const degrees = new QRadioButton(tr("度(ddd.dddddd)"), group);
    m_dms->setChecked(true);
    for (QRadioButton* const button : {m_dms, degrees}) {
        connect(button, &QRadioButton::clicked, this, &CountAzimuthDlg::rbClicked);
        row->addWidget(button);
    }
    return group;
}

QLayout* CountAzimuthDlg::makeResult()
{
    m_azimuth->setReadOnly(true);
    m_length->setReadOnly(true);
    auto* const length = new QHBoxLayout;
    length->addWidget(m_length, 1);
    length->addWidget(m_unit);
    auto* const form = new QFormLayout;
    form->addRow(tr("Point Azimuth"), m_azimuth);
    form->addRow(tr("Point Line Length"), length);
    m_note->setTextFormat(Qt::PlainText);
    m_note->setWordWrap(true);
    m_note->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    m_note->setMinimumHeight(kNoteLines * m_note->fontMetrics().lineSpacing());
    return form;
}

QLayout* CountAzimuthDlg::makeButtons()
{
    m_calculate = new QPushButton(tr("Calculate"), this);
    m_clear = new QPushButton(tr("Clear"), this);
    m_handOver = new QPushButton(tr("&Design Lines with It"), this);
    m_calculate->setDefault(true);
    m_clear->setAutoDefault(false);
    m_handOver->setAutoDefault(false);
    m_clear->setToolTip(tr("Empty azimuth and length; the coordinates stay"));
    m_handOver->setToolTip(tr("Enter this azimuth in the dialog of the design lines, which opens "
                              "for it"));
    connect(m_calculate, &QPushButton::clicked, this, &CountAzimuthDlg::pbClicked);
    connect(m_clear, &QPushButton::clicked, this, &CountAzimuthDlg::pbClicked);
    connect(m_handOver, &QPushButton::clicked, this, &CountAzimuthDlg::handOver);
    auto* const row = new QHBoxLayout;
    row->addWidget(m_calculate);
    row->addWidget(m_clear);
    row->addStretch(1);
    row->addWidget(m_handOver);
    return row;
}

/// Tab goes through the coordinates first, as they are typed.
void CountAzimuthDlg::orderTabs()
{
    std::vector<QWidget*> order(m_coordinates.begin(), m_coordinates.end());
    order.insert(order.end(), m_picks.begin(), m_picks.end());
    order.insert(order.end(), {m_dms, m_azimuth, m_length, m_calculate});
    for (std::size_t i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

// --- what is shown ---

void CountAzimuthDlg::handleEvent(const char* /*eventName*/, const char* /*payload*/,
                                  int /*reserved*/)
{
    showState();
}

void CountAzimuthDlg::showState()
{
    for (QPushButton* const button : m_picks)
        button->setEnabled(m_host.hasDocument());
    const lum::LengthUnit unit = lum::shownUnit().grid;
    m_unit->setText(lum::isMetre(unit) ? tr("米") : QString::fromStdString(lum::symbolOf(unit)));
    const ICommandExecuterx* const design = m_host.commands().find(designCommand());
    m_handOver->setEnabled(!m_azimuth->text().isEmpty() && design != nullptr &&
                           design->isEnabled());
}

void CountAzimuthDlg::onInput()
{
    clearResult(); // it is of other places
    judge();
}

void CountAzimuthDlg::clearResult()
{
    m_azimuth->clear();
    m_length->clear();
    showState();
}

QString CountAzimuthDlg::nameOf(std::size_t coordinate) const
{
    return tr("%1 of %2")
        .arg(coordinate % 2 == 0 ? tr("N") : tr("E"), m_places.at(coordinate / 2)->title());
}

QLineEdit* CountAzimuthDlg::judge()
{
    QLineEdit* first = nullptr;
    QString sentence;
    for (std::size_t i = 0; i < m_coordinates.size(); ++i) {
        QLineEdit& edit = *m_coordinates.at(i);
        const bool isFault = !isBlank(&edit) && !readCoordinate(edit.text());
        QPalette colours;
        if (isFault)
            colours.setColor(QPalette::Text, faultText(colours));
        edit.setPalette(colours);
        if (!isFault || first != nullptr)
            continue;
        first = &edit;
        sentence = tr("%1: \"%2\" is not a coordinate. Type a number with a decimal point, at most "
                      "1,000,000,000.")
                       .arg(nameOf(i), edit.text());
    }
    say(sentence, first != nullptr);
    return first;
}

void CountAzimuthDlg::say(const QString& sentence, bool isFault)
{
    QPalette colours;
    if (isFault)
        colours.setColor(QPalette::WindowText, faultText(colours));
    m_note->setPalette(colours);
    m_note->setText(sentence);
}

// --- places of the map ---

void CountAzimuthDlg::pick(QPushButton* button, std::size_t first, int clicks)
{
    if (!button->isChecked()) { // pressed a second time
        m_pick.cancel();
        return;
    }
    m_firstPicked = first;
    button->setChecked(m_pick.start(clicks)); // a pick that ends by it unchecks all
}

void CountAzimuthDlg::takePlaces(const QVector<PickedPlace>& places)
{
    QStringList points;
    std::size_t coordinate = m_firstPicked;
    for (const PickedPlace& place : places) {
        m_coordinates.at(coordinate++)->setText(coordinateText(place.north));
        m_coordinates.at(coordinate++)->setText(coordinateText(place.east));
        if (!place.point.isEmpty())
            points << place.point;
    }
    if (isFilled())
        calculate();
    if (!points.isEmpty() && m_note->text().isEmpty())
        say(tr("Taken from the points: %1.").arg(points.join(QStringLiteral(", "))), false);
}

// --- what is done ---

lum::AngleFormat CountAzimuthDlg::format() const
{
    return m_dms->isChecked() ? lum::AngleFormat::DegreesMinutesSeconds : lum::AngleFormat::Degrees;
}

void CountAzimuthDlg::pbClicked()
{
    if (sender() == m_clear)
        clearResult();
    else
        calculate();
}

bool CountAzimuthDlg::isFilled() const
{
    return std::none_of(m_coordinates.begin(), m_coordinates.end(), isBlank);
}

void CountAzimuthDlg::calculate()
{
    if (!isFilled()) {
        LumMessageBox::information(this, tr("Error"), tr("Calculate Msg Not Enough"));
        (*std::find_if(m_coordinates.begin(), m_coordinates.end(), isBlank))->setFocus();
        return;
    }
    if (QLineEdit* const wrong = judge()) {
        wrong->setFocus();
        wrong->selectAll();
        return;
    }
    std::array<double, 4> values{};
    std::transform(m_coordinates.begin(), m_coordinates.end(), values.begin(),
                   [](const QLineEdit* edit) { return readCoordinate(edit->text()).value_or(0); });
    const Azimuth azimuth = azimuthBetween(values[0], values[1], values[2], values[3]);
    m_shownFormat = format();
    m_azimuth->setText(azimuthText(azimuth.degrees, m_shownFormat));
    m_length->setText(lengthText(azimuth.length));
    if (azimuth.length == 0)
        say(tr("Both places are the same: there is no direction from one to the other."), false);
    showState();
}

void CountAzimuthDlg::rbClicked()
{
    const auto degrees = azimuthOf(m_azimuth->text(), m_shownFormat);
    m_shownFormat = format(); // a click on the choice of before changes nothing
    if (degrees)
        m_azimuth->setText(azimuthText(*degrees, m_shownFormat));
}

void CountAzimuthDlg::handOver()
{
    const auto degrees = azimuthOf(m_azimuth->text(), m_shownFormat);
    if (!degrees || !m_host.commands().execute(designCommand()))
        return;
    m_host.eventManager().publish(events::kAzimuthHandedOver,
                                  payload::azimuth(foldedAzimuth(*degrees)).constData(), 0);
}
