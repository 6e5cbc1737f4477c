#pragma once

#include "lum_desktop_sdkx/frame/FrameLayout.h"

#include <vector>

class DesktopHost;
class QMainWindow;
class QMenu;

/// The menus and tool bars of the frame: a layout says which commands stand where.
class FrameMenus
{
public:
    /// Both outlive this object.
    FrameMenus(QMainWindow& frame, DesktopHost& host);

    /// Makes the commands and fills the menu bar with them, then makes the tool bars. F10 opens the
    /// first menu.
    void add(const FrameLayout& layout);

private:
    void fillMenu(QMenu& menu, const std::vector<FrameLayout::MenuItem>& items);
    /// Lists the docks with their numbers as mnemonics.
    void listDocks(QMenu& menu);
    /// True for a menu whose entries were all left out.
    [[nodiscard]] bool isDispensable(const QMenu& menu) const;
    void addKey();
    /// Opens the first menu with its first entry chosen.
    void openFirstMenu();
    void addToolBar(const FrameLayout::ToolBar& bar);

    QMainWindow& m_frame;
    DesktopHost& m_host;
    std::vector<QMenu*> m_dockMenus; ///< they list the windows, filled each time they open
};
