#pragma once

#include <string>
#include <string_view>

namespace basalt {

/// Whose program this is: its folders and its log are named so.
struct Product
{
    std::string organisation;
    std::string name;
    std::string tool; ///< the part of the configuration that this program uses
};

/// `main` says it before anything else is asked for.
void setProduct(const Product& product);
[[nodiscard]] const Product& product();

/// The installed configuration, "$(APP_DIR)/../etc/ORGANISATION/config/NAME", resolved.
[[nodiscard]] std::string configFolder();

/// Where the templates, the settings and the window layout of this program are installed,
/// "Tool/TOOL" in `configFolder`.
[[nodiscard]] std::string toolFolder();

/// The file that lays out a property grid, "ControlXml/TOOL/PAGE.xml" in `configFolder`.
[[nodiscard]] std::string controlFile(std::string_view page);

/// The folder of the user's log, "$XDG_STATE_HOME/ORGANISATION/NAME" (by default under
/// "~/.local/state"). Not made here.
[[nodiscard]] std::string stateFolder();

/// The folder of the user's settings, "$XDG_CONFIG_HOME/ORGANISATION/NAME" (by default under
/// "~/.config"). Not made here.
[[nodiscard]] std::string settingsFolder();

} // namespace basalt
