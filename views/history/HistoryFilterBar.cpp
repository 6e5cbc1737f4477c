#include "views/history/HistoryFilterBar.h"

#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "project/edits/EditKinds.h"
#include "views/history/HistoryTexts.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>
#include <set>
#include <string>

namespace {

constexpr int kTypingMs = 300;
constexpr int kSpacing = 6;

QLabel* labelOf(QWidget* field, const QString& text)
{
    auto* const label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    return label;
}

} // namespace

HistoryFilterBar::HistoryFilterBar(QWidget* parent)
    : QWidget(parent), m_person(new ChoiceBox(this)), m_kind(new ChoiceBox(this)),
      m_point(new QLineEdit(this)), m_hasDays(new QCheckBox(tr("Only these &days:"), this)),
      m_from(new QDateEdit(QDate::currentDate(), this)),
      m_to(new QDateEdit(QDate::currentDate(), this))
{
    auto* const grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(dpi_scaled(kSpacing));
    makeChoices(*grid);
    makeDays(*grid);
    auto* const clear = new QPushButton(tr("C&lear Filters"), this);
    clear->setAutoDefault(false);
    connect(clear, &QPushButton::clicked, this, &HistoryFilterBar::clear);
    grid->addWidget(clear, 1, 5);
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(3, 3);
    grid->setColumnStretch(5, 2);
    m_typing.setSingleShot(true);
    m_typing.setInterval(kTypingMs);
    connect(&m_typing, &QTimer::timeout, this, &HistoryFilterBar::changed);
}

void HistoryFilterBar::makeChoices(QGridLayout& grid)
{
    m_person->addItem(tr("All persons"));
    m_kind->addItem(tr("All actions"));
    for (const EditKind* const kind : EditKinds::all())
        m_kind->addItem(kind->pluralTitle(), QString::fromLatin1(kind->name));
    m_point->setObjectName(QStringLiteral("point"));
    m_point->setPlaceholderText(tr("line/point, such as 1001/10015001"));
    m_point->setClearButtonEnabled(true);
    grid.addWidget(labelOf(m_person, tr("&Person:")), 0, 0);
    grid.addWidget(m_person, 0, 1);
    grid.addWidget(labelOf(m_kind, tr("&Action:")), 0, 2);
    grid.addWidget(m_kind, 0, 3);
    grid.addWidget(labelOf(m_point, tr("P&oint:")), 0, 4);
    grid.addWidget(m_point, 0, 5);
    for (ChoiceBox* const box : {m_person, m_kind})
        connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this,
                &HistoryFilterBar::changed);
    connect(m_point, &QLineEdit::textChanged, &m_typing, qOverload<>(&QTimer::start));
}

void HistoryFilterBar::makeDays(QGridLayout& grid)
{
    auto* const days = new QHBoxLayout;
    days->addWidget(m_hasDays);
    days->addWidget(m_from);
    days->addWidget(new QLabel(tr("to"), this));
    days->addWidget(m_to);
    days->addStretch(1);
    grid.addLayout(days, 1, 0, 1, 5);
    for (QDateEdit* const date : {m_from, m_to}) {
        date->setDisplayFormat(QStringLiteral("yyyy/MM/dd"));
        date->setCalendarPopup(true);
        date->setEnabled(false);
        connect(m_hasDays, &QCheckBox::toggled, date, &QWidget::setEnabled);
        connect(date, &QDateEdit::dateChanged, &m_typing, qOverload<>(&QTimer::start));
    }
    connect(m_hasDays, &QCheckBox::toggled, this, &HistoryFilterBar::changed);
}

std::optional<PointName> HistoryFilterBar::typedPoint() const
{
    const std::vector<PointName> names = pointNamesOf(m_point->text().trimmed());
    if (names.empty())
        return {};
    return std::ranges::find(names, m_named) != names.end() ? m_named : names.front();
}

HistoryFilter HistoryFilterBar::filter() const
{
    HistoryFilter filter;
    filter.person = m_person->currentData().toString();
    filter.kind = m_kind->currentData().toString().toStdString();
    if (m_hasDays->isChecked() && m_from->date() <= m_to->date()) {
        filter.from = m_from->date();
        filter.to = m_to->date();
    }
    filter.point = typedPoint();
    return filter;
}

bool HistoryFilterBar::isFiltered() const
{
    const HistoryFilter now = filter();
    return !now.person.isEmpty() || !now.kind.empty() || now.from.isValid() || now.point;
}

QString HistoryFilterBar::fault() const
{
    if (m_hasDays->isChecked() && m_from->date() > m_to->date())
        return tr("The last day is before the first: all days are shown.");
    if (!m_point->text().trimmed().isEmpty() && !typedPoint())
        return tr("A point is named by its line and its number, such as 1001/10015001.");
    return {};
}

void HistoryFilterBar::addChoices(const HistoryActionModel::Rows& rows)
{
    std::set<QString> persons;
    std::set<std::string> kinds;
    for (const HistoryActionModel::Row& row : rows) {
        persons.insert(row.event.action.person);
        kinds.insert(row.event.action.kind);
    }
    const auto add = [](ChoiceBox& box, const QString& text, const QString& value) {
        if (!value.isEmpty() && box.findData(value) < 0)
            box.addItem(text, value);
    };
    for (const QString& person : persons)
        add(*m_person, person, person);
    for (const std::string& kind : kinds)
        add(*m_kind, HistoryTexts::kindName(kind), lum::toQString(kind));
}

void HistoryFilterBar::setPoint(const PointName& point)
{
    m_named = {point.line, std::string(writtenPointNumber(point.point))};
    m_point->setText(HistoryTexts::nameOf(m_named));
    m_typing.stop();
    Q_EMIT changed();
}

void HistoryFilterBar::clear()
{
    {
        const QSignalBlocker quiet(this);
        m_person->setCurrentIndex(0);
        m_kind->setCurrentIndex(0);
        m_hasDays->setChecked(false);
        m_point->clear();
    }
    m_typing.stop();
    Q_EMIT changed();
}
