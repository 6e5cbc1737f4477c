#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/KeyList.h"
#include "Hold.h"
#include "lum_desktop_sdkx/frame/FrameLayout.h"

#include <cstdint>

namespace {

/// The component reads from its configuration what the frame read from the file.
void isConfigured(const QByteArray& config, const QString& className, const QString& name)
{
    basalt::Dictionary values;
    hold(csa_to_dictionary(values, config.toStdString()), "a configuration is a key list");
    hold(values.text("class") == className.toStdString(), "the configuration holds the class");
    hold(values.text("name") == name.toStdString(), "the configuration holds the name");
}

void isWhole(const FrameLayout::Command& command)
{
    hold(!command.className.isEmpty() && !command.name.isEmpty(), "a command has class and name");
    hold(!command.caption.isEmpty(), "a command has something to show");
    isConfigured(command.config, command.className, command.name);
}

void isWhole(const FrameLayout::Window& window)
{
    hold(!window.className.isEmpty() && !window.name.isEmpty(), "a window has class and name");
    hold(!window.caption.isEmpty(), "a window has something to show");
    isConfigured(window.config, window.className, window.name);
}

void isWhole(const FrameLayout::Menu& menu, int depth)
{
    hold(depth <= 8, "menus are no deeper than anybody can use");
    hold(!menu.caption.isEmpty(), "a menu has a caption");
    for (const FrameLayout::MenuItem& item : menu.items) {
        using Kind = FrameLayout::MenuItem::Kind;
        hold(item.submenu.size() == (item.kind == Kind::Submenu ? 1U : 0U),
             "a submenu item, and no other, holds one menu");
        if (item.kind == Kind::Command)
            isWhole(item.command);
        for (const FrameLayout::Menu& submenu : item.submenu)
            isWhole(submenu, depth + 1);
    }
}

void isWhole(const FrameLayout& layout)
{
    for (const QString& assistant : layout.assistants)
        hold(!assistant.isEmpty(), "an assistant has a class");
    for (const FrameLayout::Menu& menu : layout.menus)
        isWhole(menu, 1);
    for (const FrameLayout::ToolBar& bar : layout.toolBars)
        hold(!bar.name.isEmpty() && !bar.caption.isEmpty(), "a tool bar has name and caption");
    for (const FrameLayout::Window& window : layout.windows)
        isWhole(window);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray xml(reinterpret_cast<const char*>(data), static_cast<int>(size));
    FrameLayout layout;
    layout.assistants.push_back(QStringLiteral("before"));
    if (desktop::readFrameLayout(xml, layout).isEmpty()) {
        isWhole(layout);
        return 0;
    }
    hold(layout.assistants.size() == 1 && layout.assistants[0] == QStringLiteral("before") &&
             layout.menus.empty() && layout.toolBars.empty() && layout.windows.empty(),
         "a refused text leaves the layout as it was");
    return 0;
}
