#include "project/ui/DlgEditSteps.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "project/ui/EditSteps.h"

#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>

void DlgEditSteps::open(IDesktopHost& host, EditSteps& steps)
{
    static QPointer<DlgEditSteps> present;
    if (present == nullptr)
        present = new DlgEditSteps(host, steps); // deletes itself when it is closed
    present->show();
    present->raise();
    present->activateWindow();
}

DlgEditSteps::DlgEditSteps(IDesktopHost& host, EditSteps& steps)
    : Dialog(host.dialogParent()), m_steps(steps), m_list(new QListWidget(this)),
      m_closing(*this, host.eventManager())
{
    setWindowTitle(tr("Steps"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const hint =
        new QLabel(tr("Double-click a step to see the project as it was right after it."), this);
    hint->setWordWrap(true);
    auto* const go = new QPushButton(tr("&Go To"), this);
    auto* const close = new QPushButton(tr("Close"), this);
    go->setDefault(true);
    close->setAutoDefault(false);
    connect(go, &QPushButton::clicked, this, &DlgEditSteps::goToCurrent);
    connect(close, &QPushButton::clicked, this, &QDialog::close);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &DlgEditSteps::goToCurrent);
    connect(&steps, &EditSteps::changed, this, &DlgEditSteps::refresh);

    QVBoxLayout* const rows = makeMainLayout();
    rows->addWidget(hint);
    rows->addWidget(m_list, 1);
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(go);
    buttons->addWidget(close);
    rows->addLayout(buttons);
    setMinimumSizeScaled(300, 260);
    resize(minimumSize());
    moveIntoCorner();
    refresh();
    m_list->setFocus();
}

void DlgEditSteps::refresh()
{
    m_list->clear();
    m_list->addItem(tr("The project before these steps"));
    m_list->addItems(m_steps.titles());
    const int done = m_steps.done();
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem& item = *m_list->item(row);
        QFont font = item.font();
        font.setBold(row == done);
        item.setFont(font);
        if (row > done)
            item.setForeground(palette().brush(QPalette::Disabled, QPalette::Text));
    }
    m_list->setCurrentRow(done);
}

void DlgEditSteps::goToCurrent()
{
    if (m_list->currentRow() >= 0)
        m_steps.goTo(m_list->currentRow());
}
