#include "lum_desktop_sdkx/coords/DatumShiftChoice.h"

#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"

#include <QAbstractItemView>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kNone = 0; ///< the item before the shifts

/// Areas are compared by their bounds, which are rounded.
constexpr double kWholeArea = 0.99;

} // namespace

DatumShiftChoice::DatumShiftChoice(QWidget* parent)
    : QWidget(parent), m_row(new QWidget(this)), m_names(new ChoiceBox(m_row)),
      m_notice(new QLabel(this))
{
    auto* const caption = new QLabel(tr("&Datum shift:"), m_row);
    caption->setBuddy(m_names);
    m_names->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_names->view()->setTextElideMode(Qt::ElideRight);
    m_notice->setWordWrap(true);

    auto* const row = new QHBoxLayout(m_row);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(caption);
    row->addWidget(m_names, 1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(dpi_scaled(4));
    layout->addWidget(m_row);
    layout->addWidget(m_notice);
    connect(m_names, qOverload<int>(&QComboBox::activated), this, &DatumShiftChoice::choose);
}

void DatumShiftChoice::setSystem(const QString& code)
{
    m_shifts = lum::epsgDatumShifts(code.toStdString());
    m_names->clear();
    m_names->addItem(tr("None"));
    for (const lum::EpsgDatumShift& shift : m_shifts.known) {
        m_names->addItem(lum::toQString(describe(shift)));
        m_names->setItemData(m_names->count() - 1, lum::toQString(shift.area), Qt::ToolTipRole);
    }
}

void DatumShiftChoice::showShiftOf(const IDictionary& parameters)
{
    lum::CoordFault fault;
    const auto shift = lum::DatumShift::fromDictionary(parameters, fault);
    const int own = static_cast<int>(m_shifts.known.size()) + 1;
    const int item = fault ? own : itemOf(shift);
    m_names->removeItem(own); // this item is there only while it is selected
    if (item == own)
        m_names->addItem(tr("By the parameters below"));
    m_names->setCurrentIndex(item);
    const QString help =
        tr("Datum shifts of the EPSG register for this system: name, accuracy, and the area that "
           "each is meant for. Those that suit the system's area best come first. Their names say "
           "\"to WGS 84\"; the parameters below lead from WGS 84.");
    m_names->setToolTip(QStringLiteral("<b>%1</b><p>%2")
                            .arg(m_names->currentText().toHtmlEscaped(), help.toHtmlEscaped()));
    m_row->setVisible(!m_shifts.known.empty());
    const QString text = notice(item);
    m_notice->setText(text);
    m_notice->setVisible(!text.isEmpty());
    setVisible(m_shifts.isNeeded && (!m_shifts.known.empty() || item == kNone));
}

/// The item of a shift. A shift that is not in the list has the item behind the last.
int DatumShiftChoice::itemOf(const lum::DatumShift& shift) const
{
    const auto& known = m_shifts.known;
    const auto isIt = [&shift](const lum::EpsgDatumShift& one) { return one.shift == shift; };
    const auto picked = static_cast<std::size_t>(m_names->currentIndex());
    if (picked > kNone && picked <= known.size() && isIt(known[picked - 1]))
        return m_names->currentIndex(); // of several equal shifts the selected one
    if (m_shifts.best() != nullptr && isIt(*m_shifts.best()))
        return 1;
    if (shift.isNone())
        return kNone;
    const auto found = std::find_if(known.begin(), known.end(), isIt);
    return 1 + static_cast<int>(found - known.begin());
}

QString DatumShiftChoice::notice(int item) const
{
    if (item == kNone)
        return noticeWithoutShift();
    const auto& known = m_shifts.known;
    const auto place = static_cast<std::size_t>(item - 1);
    if (place >= known.size() || known[place].coverage >= kWholeArea)
        return {};
    const int percent = qRound(known[place].coverage * 100);
    const QString area = lum::toQString(known[place].area);
    if (percent == 0)
        return tr("This datum shift does not cover this system's area. It is meant for: %1")
            .arg(area);
    return tr("This datum shift covers %1 % of this system's area. It is meant for: %2")
        .arg(QString::number(percent), area);
}

QString DatumShiftChoice::noticeWithoutShift() const
{
    if (m_shifts.known.empty())
        return tr("The register knows no datum shift for this system. Without one, positions are "
                  "taken as WGS 84.");
    if (m_shifts.best() == nullptr)
        return tr("None of the register's datum shifts covers most of this system's area. Without "
                  "one, positions are taken as WGS 84.");
    return tr("Without a datum shift, positions are taken as WGS 84.");
}

void DatumShiftChoice::choose(int item)
{
    const auto& known = m_shifts.known;
    if (item == kNone)
        Q_EMIT chosen(lum::DatumShift());
    else if (item <= static_cast<int>(known.size()))
        Q_EMIT chosen(known[static_cast<std::size_t>(item - 1)].shift);
}
