#include "lum_desktop_sdkx/frame/FrameMenus.h"

#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/LayoutText.h"

#include <QAction>
#include <QCoreApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <qtadvanceddocking/DockWidget.h>
#include <QToolBar>

#include <algorithm>

namespace {

/// A caption whose number is its mnemonic, as far as there are digits.
QString numbered(int number, QString caption)
{
    caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
    return number < 10 ? QStringLiteral("&%1  %2").arg(number).arg(caption) : caption;
}

} // namespace

FrameMenus::FrameMenus(QMainWindow& frame, DesktopHost& host) : m_frame(frame), m_host(host) {}

void FrameMenus::add(const FrameLayout& layout)
{
    for (const FrameLayout::Menu& menu : layout.menus) {
        auto* const top = m_frame.menuBar()->addMenu(desktop::layoutText(menu.caption));
        fillMenu(*top, menu.items);
        top->menuAction()->setVisible(!isDispensable(*top));
    }
    addKey();
    for (const FrameLayout::ToolBar& bar : layout.toolBars)
        addToolBar(bar);
}

void FrameMenus::fillMenu(QMenu& menu, const std::vector<FrameLayout::MenuItem>& items)
{
    using Kind = FrameLayout::MenuItem::Kind;
    bool separatorDue = false; // added before the next entry: none at the ends, never two
    const auto add = [&](QAction* action) {
        if (separatorDue && menu.actions().size() > 1)
            menu.insertSeparator(action);
        separatorDue = false;
    };
    for (const FrameLayout::MenuItem& item : items) {
        switch (item.kind) {
        case Kind::Separator:
            separatorDue = true;
            break;
        case Kind::Docks:
            m_dockMenus.push_back(&menu);
            QObject::connect(&menu, &QMenu::aboutToShow, &m_frame,
                             [this, &menu] { listDocks(menu); });
            break;
        case Kind::Command:
            if (QAction* action = m_host.commands().add(item.command, &m_host, &m_frame)) {
                menu.addAction(action);
                add(action);
            }
            break;
        case Kind::Submenu: {
            auto* const submenu =
                new QMenu(desktop::layoutText(item.submenu.front().caption), &menu);
            fillMenu(*submenu, item.submenu.front().items);
            if (!isDispensable(*submenu)) {
                menu.addMenu(submenu);
                add(submenu->menuAction());
            }
            break;
        }
        }
    }
}

void FrameMenus::listDocks(QMenu& menu)
{
    const QList<QAction*> listed = menu.actions();
    int number = 0;
    for (QAction* toggle : m_host.windows().toggleActions()) {
        if (!listed.contains(toggle)) // the window was opened since the menu was shown
            menu.addAction(toggle);
        const auto* const dock = qobject_cast<ads::CDockWidget*>(toggle->parent());
        toggle->setText(numbered(++number, dock->windowTitle()));
    }
}

bool FrameMenus::isDispensable(const QMenu& menu) const
{
    return menu.isEmpty() &&
           std::find(m_dockMenus.begin(), m_dockMenus.end(), &menu) == m_dockMenus.end();
}

void FrameMenus::addKey()
{
    auto* const key =
        new QAction(QCoreApplication::translate("FrameMenus", "Go to the menus"), &m_frame);
    key->setShortcut(Qt::Key_F10);
    key->setShortcutContext(Qt::ApplicationShortcut); // also from a floating window
    QObject::connect(key, &QAction::triggered, &m_frame, [this] { openFirstMenu(); });
    m_frame.addAction(key);
}

void FrameMenus::openFirstMenu()
{
    m_frame.activateWindow();
    const QList<QAction*> tops = m_frame.menuBar()->actions();
    const auto isUsable = [](const QAction* action) {
        return action->isVisible() && action->isEnabled() && !action->isSeparator();
    };
    const auto top = std::find_if(tops.begin(), tops.end(), isUsable);
    if (top == tops.end() || (*top)->menu() == nullptr)
        return;
    m_frame.menuBar()->setActiveAction(*top);
    const QList<QAction*> entries = (*top)->menu()->actions();
    const auto first = std::find_if(entries.begin(), entries.end(), isUsable);
    if (first != entries.end())
        (*top)->menu()->setActiveAction(*first);
}

void FrameMenus::addToolBar(const FrameLayout::ToolBar& bar)
{
    std::vector<QAction*> actions; // a null action is a separator
    for (const QString& name : bar.commands) {
        QAction* const action = name.isEmpty() ? nullptr : m_host.commands().action(name);
        const bool isDouble = actions.empty() || actions.back() == nullptr;
        if (action != nullptr || (name.isEmpty() && !isDouble))
            actions.push_back(action); // a missing command is in the log already
    }
    if (!actions.empty() && actions.back() == nullptr)
        actions.pop_back();
    if (actions.empty())
        return;
    QToolBar* const toolBar = m_frame.addToolBar(desktop::layoutText(bar.caption));
    toolBar->setObjectName(bar.name);
    const auto bars = m_frame.findChildren<QToolBar*>(QString(), Qt::FindDirectChildrenOnly);
    toolBar->toggleViewAction()->setText(numbered(bars.size(), toolBar->windowTitle()));
    for (QAction* action : actions) {
        if (action != nullptr)
            toolBar->addAction(action);
        else
            toolBar->addSeparator();
    }
}
