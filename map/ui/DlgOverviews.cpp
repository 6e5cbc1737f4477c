#include "map/ui/DlgOverviews.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

DlgOverviews::DlgOverviews(QWidget* parent)
    : Dialog(parent), m_text(new QLabel(this)), m_bar(new QProgressBar(this))
{
    setWindowTitle(tr("Building Overviews"));
    setMinimumSizeScaled(360, 0);
    setAttribute(Qt::WA_ShowWithoutActivating); // the user goes on with what he does
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_bar->setRange(0, 100);
    auto* const buttons = new QDialogButtonBox(this);
    buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, this, &DlgOverviews::reject);
    connect(&m_builder, &lum::OverviewBuilder::progressed, m_bar, &QProgressBar::setValue);
    connect(&m_builder, &lum::OverviewBuilder::finished, this, &DlgOverviews::onFinished);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addWidget(m_text);
    layout->addWidget(m_bar);
    layout->addStretch();
    layout->addWidget(buttons);
}

void DlgOverviews::build(const QString& path)
{
    m_builder.add(path);
    showState();
    if (isVisible())
        return;
    moveIntoCorner();
    show();
}

void DlgOverviews::reject()
{
    m_builder.cancel(); // the end of the file in work closes the dialog
}

void DlgOverviews::showState()
{
    QString text = QFileInfo(m_builder.current()).fileName();
    if (const int waiting = m_builder.waitingCount(); waiting > 0)
        text += QLatin1Char('\n') + tr("Images waiting: %1").arg(waiting);
    m_text->setText(text);
}

void DlgOverviews::onFinished(const QString& path, const lum::OverviewResult& result)
{
    if (m_builder.current().isEmpty())
        hide();
    m_bar->setValue(0);
    showState();
    Q_EMIT built(path, result);
}
