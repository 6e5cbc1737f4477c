#include "lum_desktop_sdkx/frame/GuideWindow.h"

#include "lum_desktop_sdkx/frame/GuideText.h"
#include "lum_sdk/DpiScale.h"

#include <QAction>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

GuideWindow::GuideWindow(QWidget* parent, const QString& title, const QString& file)
    : Dialog(parent), m_text(new GuideText(this)), m_headings(new QListWidget(this)),
      m_words(new QLineEdit(this)), m_place(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);
    setWindowFlag(Qt::WindowMinMaxButtonsHint);
    resize(dpi_scaled(980), dpi_scaled(720));

    QVBoxLayout* const layout = makeMainLayout();
    layout->addLayout(makeFindRow());
    layout->addWidget(makeBody(), 1);

    m_text->document()->setDocumentMargin(dpi_scaled(16));
    m_text->setSource(QUrl::fromLocalFile(file), QTextDocument::MarkdownResource);
    m_text->breakLongLines();
    m_text->setHorizontalScrollBarPolicy(
        Qt::ScrollBarAlwaysOff); // Chinese stops hang over the margin
    listHeadings();
    m_text->setFocus();
}

QLayout* GuideWindow::makeFindRow()
{
    m_words->setPlaceholderText(tr("Find in the guide"));
    m_words->setClearButtonEnabled(true);
    connect(m_words, &QLineEdit::textChanged, this, &GuideWindow::findWords);
    connect(m_words, &QLineEdit::returnPressed, this, [this] { step(true); });
    auto* const row = new QHBoxLayout;
    row->addWidget(m_words, 1);
    row->addWidget(m_place);
    const auto addStep = [&](const char* icon, const QString& tip, const QKeySequence& key,
                             bool forward) {
        auto* const button = new QToolButton(this);
        auto* const action = new QAction(QIcon::fromTheme(QLatin1String(icon)), tip, this);
        action->setShortcut(key);
        connect(action, &QAction::triggered, this, [this, forward] { step(forward); });
        button->setDefaultAction(action);
        row->addWidget(button);
    };
    addStep("go-up", tr("Find the place before"), QKeySequence(QStringLiteral("Shift+F3")), false);
    addStep("go-down", tr("Find the next place"), QKeySequence(Qt::Key_F3), true);
    auto* const find = new QAction(tr("Find"), this);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, m_words, [this] {
        m_words->setFocus(Qt::ShortcutFocusReason);
        m_words->selectAll();
    });
    addAction(find);
    return row;
}

QWidget* GuideWindow::makeBody()
{
    connect(m_headings, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            m_text->goTo(m_headings->item(row)->data(Qt::UserRole).toInt());
    });
    auto* const body = new QSplitter(this);
    body->addWidget(m_headings);
    body->addWidget(m_text);
    body->setStretchFactor(1, 1);
    body->setSizes({dpi_scaled(210), dpi_scaled(760)});
    body->setChildrenCollapsible(false);
    return body;
}

void GuideWindow::listHeadings()
{
    for (const GuideText::Heading& heading : m_text->headings()) {
        auto* const item = new QListWidgetItem(
            QString((heading.level - 1) * 4, QLatin1Char(' ')) + heading.text, m_headings);
        item->setData(Qt::UserRole, heading.position);
        item->setToolTip(heading.text);
    }
}

void GuideWindow::findWords()
{
    m_count = m_text->findAll(m_words->text());
    tellPlace();
}

void GuideWindow::step(bool forward)
{
    m_text->step(forward);
    tellPlace();
}

void GuideWindow::tellPlace()
{
    if (m_words->text().isEmpty())
        m_place->clear();
    else if (m_count == 0)
        m_place->setText(tr("not found"));
    else
        m_place->setText(tr("%1 of %2").arg(m_text->current()).arg(m_count));
}
