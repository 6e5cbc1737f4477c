#include "reports/ui/PeriodPanel.h"

#include "exchange/ShownTimes.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/SystemKeys.h"
#include "lum_sdk/Text.h"
#include "reports/ReportInput.h"

#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QRadioButton>

namespace {

/// The names of the calendar are those of the program's language.
QLocale shownLocale()
{
    const auto language = get_system_ini_parameter().dictionary().text(settings::kLanguage);
    return language.empty() ? QLocale::system() : QLocale(lum::toQString(language));
}

} // namespace

PeriodPanel::PeriodPanel(const ResultDays& results, const PeriodChoice& choice, QWidget* parent)
    : QGroupBox(tr("Period (%1)").arg(shownZone()), parent), m_firstDay(results.firstDay()),
      m_lastDay(results.lastDay()), m_all(new QRadioButton(tr("&All results"), this)),
      m_isDay(new QRadioButton(tr("This &day:"), this)),
      m_isSpan(new QRadioButton(tr("&From:"), this)), m_day(makeDate(choice.day, m_lastDay, "day")),
      m_first(makeDate(choice.first, m_firstDay, "first")),
      m_last(makeDate(choice.last, m_lastDay, "last"))
{
    auto* const to = new QLabel(tr("&to:"), this);
    to->setBuddy(m_last);
    auto* const grid = new QGridLayout(this);
    grid->addWidget(m_all, 0, 0, 1, 2);
    grid->addWidget(m_isDay, 1, 0);
    grid->addWidget(m_day, 1, 1);
    grid->addWidget(m_isSpan, 2, 0);
    grid->addWidget(m_first, 2, 1);
    grid->addWidget(to, 3, 0, Qt::AlignRight);
    grid->addWidget(m_last, 3, 1);
    grid->setRowStretch(4, 1);
    grid->setColumnStretch(1, 1);
    for (const auto& [radio, kind] : {std::pair(m_all, PeriodChoice::Kind::All),
                                      {m_isDay, PeriodChoice::Kind::Day},
                                      {m_isSpan, PeriodChoice::Kind::Span}}) {
        radio->setChecked(choice.kind == kind);
        connect(radio, &QRadioButton::toggled, this, &PeriodPanel::changed);
    }
    for (const auto& [radio, date] : {std::pair<QRadioButton*, QWidget*>(m_isDay, m_day),
                                      {m_isSpan, m_first},
                                      {m_isSpan, m_last},
                                      {m_isSpan, to}}) {
        date->setEnabled(radio->isChecked());
        connect(radio, &QRadioButton::toggled, date, &QWidget::setEnabled);
    }
}

QDateEdit* PeriodPanel::makeDate(const QDate& kept, const QDate& proposed, const char* name)
{
    auto* const date = new QDateEdit(kept.isValid() ? kept : proposed, this);
    date->setObjectName(QLatin1String(name));
    date->setLocale(shownLocale());
    date->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
    date->setCalendarPopup(true);
    connect(date, &QDateEdit::dateChanged, this, &PeriodPanel::changed);
    return date;
}

PeriodChoice PeriodPanel::choice() const
{
    const auto unlessProposed = [](const QDateEdit* date, const QDate& proposed) {
        return date->date() == proposed ? QDate() : date->date();
    };
    PeriodChoice choice;
    if (!m_all->isChecked())
        choice.kind = m_isDay->isChecked() ? PeriodChoice::Kind::Day : PeriodChoice::Kind::Span;
    choice.day = unlessProposed(m_day, m_lastDay);
    choice.first = unlessProposed(m_first, m_firstDay);
    choice.last = unlessProposed(m_last, m_lastDay);
    return choice;
}

DaySpan PeriodPanel::days() const
{
    if (m_all->isChecked())
        return {};
    if (m_isDay->isChecked())
        return {m_day->date(), m_day->date()};
    return {m_first->date(), m_last->date()};
}

void PeriodPanel::apply(ReportChoice& report) const
{
    const DaySpan span = days();
    if (!span.isAll())
        report.setDays(span.first, span.last);
}

QString PeriodPanel::fault() const
{
    const DaySpan span = days();
    return span.first > span.last ? tr("The period ends before it begins.") : QString();
}
