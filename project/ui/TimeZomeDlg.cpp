#include "project/ui/TimeZomeDlg.h"

#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int kMostHours = 12; // either side of Greenwich
constexpr int kBeijingHours = 8;

QString offsetText(int hours)
{
    if (hours == 0)
        return QStringLiteral("UTC");
    return hours < 0 ? QStringLiteral("UTC-%1").arg(-hours) : QStringLiteral("UTC+%1").arg(hours);
}

} // namespace

TimeZomeDlg::TimeZomeDlg(QWidget* parent, IEventManager& events)
    : Dialog(parent), m_events(events), m_beijing(new QRadioButton(tr("北京时间"), this)),
      m_utc(new QRadioButton(QStringLiteral("UTC"), this)),
      m_custom(new QRadioButton(tr("自定义时区"), this)), m_offsets(new QComboBox(this))
{
    setWindowTitle(tr("时区修改"));
    setMinimumSizeScaled(320, 0);
    for (int hours = -kMostHours; hours <= kMostHours; ++hours)
        m_offsets->addItem(offsetText(hours));
    m_offsets->setCurrentIndex(kMostHours);
    m_offsets->setEnabled(false);
    connect(m_custom, &QRadioButton::toggled, m_offsets, &QWidget::setEnabled);
    showCurrent();

    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("确认"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("取消"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &TimeZomeDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* const custom = new QHBoxLayout;
    custom->addWidget(m_custom);
    custom->addWidget(m_offsets, 1);
    QVBoxLayout* const layout = makeMainLayout();
    layout->addWidget(m_beijing);
    layout->addWidget(m_utc);
    layout->addLayout(custom);
    layout->addStretch();
    layout->addWidget(buttons);
}

void TimeZomeDlg::accept()
{
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(settings::kTimeZone, std::to_string(offsetHours()));
    settings.save(); // has logged why it failed; the choice holds for this session
    m_events.publish(events::kRefreshSurveyTable, nullptr, 0);
    Dialog::accept();
}

int TimeZomeDlg::offsetHours() const
{
    if (m_utc->isChecked())
        return 0;
    return m_custom->isChecked() ? m_offsets->currentIndex() - kMostHours : kBeijingHours;
}

void TimeZomeDlg::showCurrent()
{
    const int hours =
        get_system_ini_parameter().dictionary().integer(settings::kTimeZone, kBeijingHours);
    if (hours == kBeijingHours) {
        m_beijing->setChecked(true);
    } else if (hours == 0) {
        m_utc->setChecked(true);
    } else {
        m_custom->setChecked(true);
        m_offsets->setCurrentIndex(qBound(-kMostHours, hours, kMostHours) + kMostHours);
    }
}
