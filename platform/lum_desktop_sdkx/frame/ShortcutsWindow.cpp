#include "lum_desktop_sdkx/frame/ShortcutsWindow.h"

#include "lum_desktop_sdkx/frame/Mnemonics.h"
#include "lum_sdk/DpiScale.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSet>
#include <QTextBrowser>
#include <QTextDocumentFragment>
#include <QVBoxLayout>

namespace {

/// Builds the list from the menus, then from what has keys but no menu entry; last come the keys
/// that the map itself takes (`ReactorDefault`).
class ShortcutList
{
public:
    explicit ShortcutList(const QMainWindow& frame)
    {
        for (const QAction* top : frame.menuBar()->actions()) {
            if (top->menu() == nullptr || !top->isVisible())
                continue;
            m_heading = desktop::withoutMnemonic(top->text());
            addMenu(*top->menu());
        }
        m_heading = ShortcutsWindow::tr("Without a menu entry");
        for (const QAction* action : frame.findChildren<QAction*>())
            add(*action);
        addMapKeys();
    }

    [[nodiscard]] QString html() const
    {
        return QStringLiteral("<table cellpadding=\"3\" cellspacing=\"0\">%1</table>").arg(m_rows);
    }

private:
    void addMenu(const QMenu& menu)
    {
        for (const QAction* action : menu.actions()) {
            if (action->menu() != nullptr)
                addMenu(*action->menu());
            else
                add(*action);
        }
    }

    void add(const QAction& action)
    {
        const QString keys =
            QKeySequence::listToString(action.shortcuts(), QKeySequence::NativeText)
                .replace(QLatin1String("; "), QLatin1String(", "));
        if (keys.isEmpty() || !action.isVisible() || m_listed.contains(&action))
            return;
        m_listed.insert(&action);
        QString caption = desktop::withoutMnemonic(action.text());
        caption.remove(QStringLiteral("..."));
        addRow(caption, keys);
    }

    void addMapKeys()
    {
        m_heading = ShortcutsWindow::tr("While the map has the focus");
        addRow(ShortcutsWindow::tr("Come nearer, step back"), QStringLiteral("+, -"));
        addRow(ShortcutsWindow::tr("Move the map"),
               ShortcutsWindow::tr("Arrow keys; farther with Shift"));
        addRow(ShortcutsWindow::tr("Show everything"),
               QKeySequence(Qt::Key_Home).toString(QKeySequence::NativeText));
    }

    void addRow(const QString& caption, const QString& keys)
    {
        if (!m_heading.isEmpty())
            m_rows += QStringLiteral("<tr><td colspan=\"2\"><h4>%1</h4></td></tr>")
                          .arg(m_heading.toHtmlEscaped());
        m_heading.clear();
        m_rows += QStringLiteral("<tr><td>%1&nbsp;&nbsp;&nbsp;&nbsp;</td><td>%2</td></tr>")
                      .arg(caption.toHtmlEscaped(), keys.toHtmlEscaped());
    }

    QString m_rows;
    QString m_heading; ///< written above the next row; empty when it was
    QSet<const QAction*> m_listed;
};

} // namespace

ShortcutsWindow::ShortcutsWindow(QMainWindow& frame)
    : Dialog(&frame), m_text(new QTextBrowser(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Shortcuts"));
    resize(dpi_scaled(460), dpi_scaled(620));
    m_text->document()->setDocumentMargin(dpi_scaled(12));
    m_text->setHtml(ShortcutList(frame).html());

    auto* const buttons = new QDialogButtonBox(this);
    QPushButton* const copy = buttons->addButton(tr("&Copy"), QDialogButtonBox::ActionRole);
    QPushButton* const print = buttons->addButton(tr("&Print..."), QDialogButtonBox::ActionRole);
    buttons->addButton(tr("Close"), QDialogButtonBox::RejectRole)->setDefault(true);
    connect(copy, &QPushButton::clicked, this, &ShortcutsWindow::copyAll);
    connect(print, &QPushButton::clicked, this, &ShortcutsWindow::print);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    QVBoxLayout* const layout = makeMainLayout();
    layout->addWidget(m_text, 1);
    layout->addWidget(buttons);
}

void ShortcutsWindow::copyAll()
{
    const QTextCursor before = m_text->textCursor();
    m_text->selectAll();
    m_text->copy();
    m_text->setTextCursor(before);
}

void ShortcutsWindow::print()
{
    QPrinter printer;
    QPrintDialog dialog(&printer, this);
    if (dialog.exec() == QDialog::Accepted)
        m_text->print(&printer);
}
