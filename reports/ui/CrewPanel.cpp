#include "reports/ui/CrewPanel.h"

#include "lum_sdk/GroupedNumber.h"
#include "reports/ReportInput.h"
#include "reports/ui/ResultDays.h"

#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

constexpr int kShownRows = 5; // at least; the list scrolls

} // namespace

CrewPanel::CrewPanel(const ResultDays& results, const QStringList& leftOut, QWidget* parent)
    : QGroupBox(tr("Crews"), parent), m_all(new QCheckBox(tr("All &crews"), this)),
      m_list(new QListWidget(this))
{
    const QStringList names = results.surveyors();
    for (const QString& name : names) {
        auto* const item = new QListWidgetItem(
            QStringLiteral("%1 (%2)").arg(name.isEmpty() ? tr("no surveyor given") : name,
                                          lum::groupedNumber(results.count(name))),
            m_list);
        item->setData(Qt::UserRole, name);
        item->setCheckState(leftOut.contains(name) ? Qt::Unchecked : Qt::Checked);
        item->setToolTip(
            tr("Results of this surveyor: %1").arg(lum::groupedNumber(results.count(name))));
    }
    m_list->setMinimumHeight(kShownRows * (m_list->fontMetrics().height() + 4));
    auto* const single = new QLabel(tr("&Single crews:"), this);
    single->setBuddy(m_list);
    if (m_list->count() > 0)
        m_list->setCurrentRow(0);

    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(m_all);
    rows->addWidget(single);
    rows->addWidget(m_list, 1);
    m_all->setEnabled(!names.isEmpty());
    showWhetherAll();
    connect(m_all, &QCheckBox::clicked, this,
            [this] { setAll(m_all->checkState() != Qt::Unchecked); });
    connect(m_list, &QListWidget::itemChanged, this, [this] {
        showWhetherAll();
        Q_EMIT changed();
    });
}

QStringList CrewPanel::surveyors(Qt::CheckState state) const
{
    QStringList names;
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->checkState() == state)
            names << m_list->item(row)->data(Qt::UserRole).toString();
    }
    return names;
}

void CrewPanel::setAll(bool isChecked)
{
    {
        const QSignalBlocker blocker(m_list);
        for (int row = 0; row < m_list->count(); ++row)
            m_list->item(row)->setCheckState(isChecked ? Qt::Checked : Qt::Unchecked);
    }
    showWhetherAll();
    Q_EMIT changed();
}

void CrewPanel::showWhetherAll()
{
    const int checked = chosen().size();
    if (checked == m_list->count())
        m_all->setCheckState(Qt::Checked);
    else
        m_all->setCheckState(checked == 0 ? Qt::Unchecked : Qt::PartiallyChecked);
}

void CrewPanel::apply(ReportChoice& report) const
{
    if (!leftOut().isEmpty())
        report.surveyors = chosen();
}

QString CrewPanel::fault() const
{
    return m_list->count() > 0 && chosen().isEmpty() ? tr("Please choose a crew.") : QString();
}
