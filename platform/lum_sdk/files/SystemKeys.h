#pragma once

/// The platform's own keys of the system status dictionary.
namespace status {

inline constexpr const char* kDrawBoundaryRect = "draw_boundary_rect"; ///< 1 shows it; "0"
inline constexpr const char* kUseGrid = "useGrid"; ///< 1 shows the base map; spelled so; "0"

} // namespace status

/// The platform's own keys of the system settings, with the value of a missing key.
namespace settings {

inline constexpr const char* kCoordUnit = "un_coordUnit"; ///< 0 metres, otherwise feet; "0"
inline constexpr const char* kLanguage = "language";      ///< "en", "zh_CN"; "" is the system's
inline constexpr const char* kTheme = "theme"; ///< "light", "dark"; "" follows the desktop

} // namespace settings
