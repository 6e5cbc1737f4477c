#pragma once

#include "lum_sdk/events/PlatformEvents.h"

/// The product's named events; the platform's stand in the header above. Each comment says who
/// publishes, who listens and what the payload holds; `Payloads.h` builds the payloads.
namespace events {

// --- map; none has a payload ---

/// The change of view -> data layer.
inline constexpr const char* kPaintingLayerUpdate = "ON_PAINTING_LAYER_UPDATE";
/// Project new, open and close, design edits and generation -> data layer, design tree.
inline constexpr const char* kRefreshDesignLayer = "REFRESH_DESIGN_LAYER";
/// Project new, open and close, survey edits, resurvey results -> data layer, survey tree.
inline constexpr const char* kRefreshSurveyLayer = "REFRESH_SURVEY_LAYER";

// --- project ---

/// The data manager, when the project comes to differ from its files or to agree with them again ->
/// assistant, which shows it in the title. No payload.
inline constexpr const char* kProjectModified = "ON_PROJECT_MODIFIED";

// --- tables ---

/// Checks, corrected points -> design table, attribute panel. No payload.
inline constexpr const char* kRefreshDesignTable = "REFRESH_DESIGN_TABLE";
/// Coordinate format, quality check, time zone, corrected points -> survey table, attribute panel,
/// data layer. No payload.
inline constexpr const char* kRefreshSurveyTable = "REFRESH_SURVEY_TABLE";
/// Resurvey check -> attribute panel, data layer. No payload.
inline constexpr const char* kResurveysChecked = "ON_RESURVEYS_CHECKED";
/// The dialog of the survey columns, the table's header -> survey table. No payload.
inline constexpr const char* kSurveyColumnsChanged = "ON_SURVEY_COLUMNS_CHANGED";
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

// --- history ---

/// The tables' and the attribute panel's menu -> history command, which opens the history of this
/// point. "pointName=...,lineName=...".
inline constexpr const char* kShowPointHistory = "ON_SHOW_POINT_HISTORY";

// --- problems ---

/// Acceptances of problems that were taken back or made again -> window of the problems. No
/// payload.
inline constexpr const char* kAcceptancesChanged = "ON_ACCEPTANCES_CHANGED";

// --- selection ---

/// Design table, map pick, results of checks while the table is missing -> attribute panel,
/// selection follower. "pointName=...,lineName=...".
inline constexpr const char* kDesignPointSelected = "ON_DESIGN_POINT_SELECTED";
/// Survey table, map pick, results of checks while the table is missing -> attribute panel,
/// selection follower. "pointName=...,lineName=...".
inline constexpr const char* kSurveyPointSelected = "ON_SURVEY_POINT_SELECTED";
/// Map pick of a base station -> attribute panel, selection follower. "stationId=...", counted from
/// 0.
inline constexpr const char* kStationPointSelected = "ON_STATION_POINT_SELECTED";

// --- design ---

/// The azimuth calculator, once the dialog of the design lines is open -> that dialog.
/// "azimuth=...", decimal degrees from 0 up to 360.
inline constexpr const char* kAzimuthHandedOver = "ON_AZIMUTH_HANDED_OVER";

} // namespace events
