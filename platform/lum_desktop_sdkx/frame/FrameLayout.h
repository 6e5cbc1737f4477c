#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

/// The main frame as its XML file describes it.
///
///     <main_frame>
///       <assistant class="..."/>
///       <menu caption="...">
///         <command class="..." name="..." caption="..." icon="..." shortcut="..." tip="..."/>
///         <separator/>  <docks/>  <menu caption="...">...</menu>
///       </menu>
///       <toolbar name="..." caption="..."> <command name="..."/> <separator/> </toolbar>
///       <window class="..." name="..." caption="..." icon="..." area="..." place="below"
///               width="..." height="..." closable="0"/>
///     </main_frame>
///
/// "name" is what other components ask for; "caption" is shown, in English, translated, and the
/// same as the name when it is missing. A command whose caption is empty, and that names none
/// itself, does not show. "area" is center, left, right, bottom or status; a window
/// is tabbed with the last one of its area, or stacked under it with "place" below. `<docks/>`
/// stands for the list of dockable windows. All attributes of a command or window are passed on to
/// its component as its configuration.
struct FrameLayout
{
    struct Command
    {
        QString className;
        QString name;
        QString caption;
        QString icon;
        QString shortcut; ///< portable key sequences, such as "Ctrl+N" or "Ctrl++; Ctrl+="
        QString tip;
        QByteArray config; ///< key list of all attributes
    };

    struct Menu;
    struct MenuItem
    {
        enum class Kind
        {
            Command,
            Separator,
            Submenu,
            Docks
        };
        Kind kind = Kind::Separator;
        Command command;           ///< of a Command
        std::vector<Menu> submenu; ///< one, of a Submenu
    };
    struct Menu
    {
        QString caption;
        std::vector<MenuItem> items;
    };

    struct ToolBar
    {
        QString name;
        QString caption;
        std::vector<QString> commands; ///< names of menu commands; empty for a separator
    };

    enum class Area
    {
        Center,
        Left,
        Right,
        Bottom,
        Status
    };
    struct Window
    {
        QString className;
        QString name;
        QString caption;
        QString icon;
        Area area = Area::Center;
        bool isBelow = false;   ///< stacked under the area's last window, not tabbed with it
        bool isClosable = true; ///< "closable", 1 or 0
        int width = 0;          ///< preferred, logical pixels; 0 leaves it to the frame
        int height = 0;
        QByteArray config; ///< key list of all attributes
    };

    std::vector<QString> assistants;
    std::vector<Menu> menus;
    std::vector<ToolBar> toolBars;
    std::vector<Window> windows;

    /// What a frame must have when its file cannot be read: the map and a way out.
    [[nodiscard]] static FrameLayout minimal();
};

namespace desktop {

/// Reads a layout; `layout` changes only on success.
/// \returns an empty text, or what is wrong and in which line
[[nodiscard]] QString readFrameLayout(const QByteArray& xml, FrameLayout& layout);

} // namespace desktop
