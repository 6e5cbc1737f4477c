#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

/// The main frame as its XML file describes it.
///
///     <main_frame>
///       <assistant class="..."/>
///       <menu caption="...">
///         <command class="..." name="..." caption="..." icon="..." shortcut="..." tip="..."
///                  group="..." enabled_while="key=value" checked_while="key=value"/>
///         <separator/>  <docks/>  <menu caption="...">...</menu>
///       </menu>
///       <toolbar name="..." caption="..."> <command name="..."/> <separator/> </toolbar>
///       <window class="..." name="..." caption="..." icon="..." area="..." place="below"
///               width="..." height="..." closable="0"/>
///     </main_frame>
///
/// - "name" is the name by which other components find a command or window.
/// - "caption" is the text that is shown. It is English here and gets translated. Without it the
///   name is shown. A command with an empty caption is hidden, unless its class gives a caption.
///   A letter behind "&" opens an entry by the keyboard; components get the caption without it.
/// - The entries of one "group" exclude one another and are marked as such.
/// - "enabled_while" disables an entry, whatever its class says, while the key has another value in
///   the system status; "checked_while" checks the entry while the key has this value.
/// - "area" is center, left, right, bottom or status. A window becomes a tab beside the last window
///   of its area. With "place" below it stands under that window.
/// - `<docks/>` stands for the list of windows that can be shown and hidden.
///
/// All attributes of a command or window are handed to its component as its configuration.
struct FrameLayout
{
    /// A key of the system status and the value that it is compared with; none without a key.
    struct StatusRule
    {
        std::string key;
        std::string value;
    };
    struct Command
    {
        QString className;
        QString name;
        QString caption;
        QString icon;
        QString shortcut; ///< portable key sequences, such as "Ctrl+N" or "Ctrl++; Ctrl+="
        QString tip;
        QString group;
        StatusRule enabledWhile;
        StatusRule checkedWhile;
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
        std::vector<QString> commands; ///< names of menu commands; an empty name is a separator
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
        bool isBelow = false;   ///< under the last window of the area instead of a tab beside it
        bool isClosable = true; ///< "closable", 1 or 0
        int width = 0;          ///< wanted width, logical pixels; 0 when the layout has none
        int height = 0;         ///< the same for the height
        QByteArray config;      ///< key list of all attributes
    };

    std::vector<QString> assistants;
    std::vector<Menu> menus;
    std::vector<ToolBar> toolBars;
    std::vector<Window> windows;

    /// The layout when the file cannot be read: the map, and a command to exit.
    [[nodiscard]] static FrameLayout minimal();
};

namespace desktop {

/// Reads a layout. `layout` changes only on success.
/// \returns an empty text, or the fault and its line
[[nodiscard]] QString readFrameLayout(const QByteArray& xml, FrameLayout& layout);

} // namespace desktop
