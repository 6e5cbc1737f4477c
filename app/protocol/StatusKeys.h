#pragma once

/// Keys of the system status dictionary, with the value that a missing key stands for.
namespace status {

inline constexpr const char* kProjectOpen = "project_open";      ///< "1" while one is open; "0"
inline constexpr const char* kProjectPath = "project_path";      ///< the project folder; ""
inline constexpr const char* kProjectName = "project_name";      ///< without extension; ""
inline constexpr const char* kViewShowWhich = "view_show_which"; ///< 0 survey, 1 design; "1"
inline constexpr const char* kShowSourceLines = "show_s_line";   ///< "1"
inline constexpr const char* kShowReceiverLines = "show_r_line"; ///< "1"
inline constexpr const char* kDrawBoundaryRect = "draw_boundary_rect"; ///< "0"
inline constexpr const char* kMouseMode = "operateReator";    ///< 0 pick, 1 pan, 2 zoom; spelled so
inline constexpr const char* kDegreeFormat = "degree_format"; ///< 0 decimal, 1 dms; "0"
inline constexpr const char* kShowAllLines = "isshow_allineiew"; ///< survey table; spelled so; "0"

} // namespace status

/// Keys of the system settings, with their defaults.
namespace settings {

inline constexpr const char* kCoordUnit = "un_coordUnit"; ///< 0 metres, otherwise feet; "0"
inline constexpr const char* kTimeZone = "time_zone";     ///< hours east of Greenwich; "8"
inline constexpr const char* kExportColumns = "survey_export_columns"; ///< keys; "" is all
inline constexpr const char* kLanguage = "language"; ///< "en", "zh_CN"; "" is the system's
inline constexpr const char* kTheme = "theme";       ///< "light", "dark"; "" follows the desktop

} // namespace settings
