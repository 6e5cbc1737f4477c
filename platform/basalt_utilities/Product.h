#pragma once

#include <string>
#include <string_view>

namespace basalt {

/// The names of the program, which are also those of its folders and its log.
struct Product
{
    std::string organisation;
    std::string name;
    std::string tool; ///< the part of the configuration that this program uses
};

/// `main` calls it before it uses anything else of the platform.
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
/// "~/.local/state"). It may not exist yet.
[[nodiscard]] std::string stateFolder();

/// The folder of the user's settings, "$XDG_CONFIG_HOME/ORGANISATION/NAME" (by default under
/// "~/.config"). It may not exist yet.
[[nodiscard]] std::string settingsFolder();

/// The folder of what can be fetched again, "$XDG_CACHE_HOME/ORGANISATION/NAME" (by default under
/// "~/.cache"). It may not exist yet.
[[nodiscard]] std::string cacheFolder();

} // namespace basalt
