#include "views/history/HistoryFilterBar.h"

#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_sdk/DpiScale.h"
#include "model/PointNumber.h"
#include "project/edits/EditKinds.h"
#include "views/history/HistoryTexts.h"

#include <QCheckBox>
#include <QDateEdit>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

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
    for (const EditKind* const kind :
         {&EditKinds::kImportDesign, &EditKinds::kImportSurvey, &EditKinds::kDeleteResults,
          &EditKinds::kCorrectResult, &EditKinds::kCorrectDesign, &EditKinds::kGenerateDesign,
          &EditKinds::kQualityLimits, &EditKinds::kDesignParameters, &EditKinds::kCoordSystem,
          &EditKinds::kRestore, &EditKinds::kAcceptProblems, &EditKinds::kEndAcceptances})
        m_kind->addItem(HistoryTexts::kindName(kind->name), QString::fromLatin1(kind->name));
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
    const QString text = m_point->text().trimmed();
    const int slash = text.lastIndexOf(QLatin1Char('/'));
    if (slash <= 0 || slash + 1 == text.size())
        return {};
    const std::string number = text.mid(slash + 1).toStdString();
    return PointName{text.left(slash).toStdString(), std::string(writtenPointNumber(number))};
}

HistoryFilter HistoryFilterBar::filter() const
{
    HistoryFilter filter;
    if (m_person->currentIndex() > 0)
        filter.person = m_person->currentText();
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

void HistoryFilterBar::addPersons(const QStringList& persons)
{
    for (const QString& person : persons) {
        if (!person.isEmpty() &&
            m_person->findText(person, Qt::MatchFixedString | Qt::MatchCaseSensitive) < 0)
            m_person->addItem(person);
    }
}

void HistoryFilterBar::setPoint(const PointName& point)
{
    m_point->setText(
        HistoryTexts::nameOf({point.line, std::string(writtenPointNumber(point.point))}));
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
