#pragma once

#include "lum_sdk/files/SystemKeys.h"

/// The product's keys of the system status dictionary, with the value of a missing key; the
/// platform's stand in the header above.
namespace status {

inline constexpr const char* kProjectOpen = "project_open";      ///< "1" while one is open; "0"
inline constexpr const char* kProjectPath = "project_path";      ///< the project folder; ""
inline constexpr const char* kProjectName = "project_name";      ///< without extension; ""
inline constexpr const char* kViewShowWhich = "view_show_which"; ///< 0 survey, 1 design; "1"
inline constexpr const char* kShowSourceLines = "show_s_line";   ///< "1"
inline constexpr const char* kShowReceiverLines = "show_r_line"; ///< "1"
inline constexpr const char* kMouseMode = "operateReator";    ///< 0 pick, 1 pan, 2 zoom; spelled so
inline constexpr const char* kDegreeFormat = "degree_format"; ///< 0 decimal, 1 dms; "0"
inline constexpr const char* kShowAllLines = "isshow_allineiew"; ///< survey table; spelled so; "0"

} // namespace status

/// The product's keys of the system settings, with the value of a missing key.
namespace settings {

inline constexpr const char* kTimeZone = "time_zone"; ///< hours east of Greenwich; "8"
inline constexpr const char* kExportColumns = "survey_export_columns"; ///< keys; "" is all
inline constexpr const char* kTableColumns =
    "survey_table_columns"; ///< keys in order; "" is theirs
inline constexpr const char* kHiddenColumns = "survey_table_hidden"; ///< keys; ""
inline constexpr const char* kResultColors = "result_colors"; ///< see Colorings.h; "" is none
/// "1" or "0"; "" is "1" without colours, otherwise "0"
inline constexpr const char* kShowBaseTies = "show_base_ties";
inline constexpr const char* kShowOffsets = "show_offsets"; ///< "1"
/// "all", "room" (none covers another) or "none"; "" is "all" without colours, otherwise "room"
inline constexpr const char* kResultNames = "result_names";
/// Of the kinds and of each column, pixels at 100 %; 0 for those that the user has not chosen; ""
inline constexpr const char* kProblemWidths = "problem_widths";

} // namespace settings
