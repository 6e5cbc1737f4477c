#pragma once

/// The named events by which components talk. Each comment says who publishes, who listens and
/// what rides along; `Payloads.h` builds the payloads, `csa_to_dictionary` reads them.
namespace events {

// --- frame ---

/// The map, whenever the cursor moves over it -> assistant. Keys N and E, map coordinates in
/// metres, separated by a blank.
inline constexpr const char* kXyChanged = "ON_XY_CHANGED";
/// The assistant -> status bar. The text to show, not a key list.
inline constexpr const char* kXyChangedText = "ON_XY_CHANGED_X";
/// Every long operation -> progress bar. "text=...,value=percent,is_exec=0", a caption with
/// "scroll=1", or "show=0" at the end.
inline constexpr const char* kProgress = "ON_PROGRESS_CHANGED_TO_STATUS_BAR";
/// The database adapter -> data manager. Keys count and total.
inline constexpr const char* kDbQueryProcess = "ON_DB_QUERY_PROCESS";
/// Whoever changed the system status -> frame, which reads it again. No payload.
inline constexpr const char* kUpdateSystemStatus = "UPDATE_SYSTEM_STATUS_EVENT";

// --- project and map; none has a payload ---

/// The assistant after the base layers, project settings after a change -> data layer.
inline constexpr const char* kSettingViewFinished = "ON_SETTING_VIEW_FINISHED";
/// Project settings after a change -> platform.
inline constexpr const char* kProjectChanged = "ON_PROJECT_CHANGED";
/// The change of view -> data layer.
inline constexpr const char* kPaintingLayerUpdate = "ON_PAINTING_LAYER_UPDATE";
/// Project new, open and close, design edits and generation -> data layer, design tree.
inline constexpr const char* kRefreshDesignLayer = "REFRESH_DESIGN_LAYER";
/// Project new, open and close, survey edits, resurvey results -> data layer, survey tree.
inline constexpr const char* kRefreshSurveyLayer = "REFRESH_SURVEY_LAYER";
/// The boundary command -> boundary layer.
inline constexpr const char* kInitBoundaryRect = "ON_INIT_BOUNDARY_RECT";

// --- tables ---

/// Checks -> design table. No payload.
inline constexpr const char* kRefreshDesignTable = "REFRESH_DESIGN_TABLE";
/// Coordinate format, quality check, time zone -> survey table. No payload.
inline constexpr const char* kRefreshSurveyTable = "REFRESH_SURVEY_TABLE";
/// Design tree -> design table. No payload.
inline constexpr const char* kClearDesignTable = "ON_CLEAR_DESIGN_TABLE";
/// Coordinate format, survey tree -> survey table. No payload.
inline constexpr const char* kClearSurveyTable = "ON_CLEAR_SURVEY_TABLE";
/// Design tree -> design table. "line_num=...".
inline constexpr const char* kDesignLineSwitched = "ON_DESIGN_LINE_SWITCHED";
/// Survey tree -> survey table. "line_num=...".
inline constexpr const char* kSurveyLineSwitched = "ON_SURVEY_LINE_SWITCHED";
/// Survey tree -> survey table. No payload.
inline constexpr const char* kShowAllSurveyTable = "ON_SHOW_ALL_SURVEY_TABLE";
/// Design tree -> design table. "line_num=...,point_num=...".
inline constexpr const char* kDesignTableSelectPoint = "ON_DESIGN_TABLE_SELECT_POINT";
/// Survey tree -> survey table. "line_num=...,point_num=...".
inline constexpr const char* kSurveyTableSelectPoint = "ON_SURVEY_TABLE_SELECT_POINT";

// --- selection ---

/// Design table, map pick -> attribute panel. "pointName=...,lineName=...".
inline constexpr const char* kDesignPointSelected = "ON_DESIGN_POINT_SELECTED";
/// Survey table, map pick -> attribute panel. "pointName=...,lineName=...".
inline constexpr const char* kSurveyPointSelected = "ON_SURVEY_POINT_SELECTED";
/// Map pick of a base station -> attribute panel. "stationId=...", counted from 0.
inline constexpr const char* kStationPointSelected = "ON_STATION_POINT_SELECTED";

} // namespace events
