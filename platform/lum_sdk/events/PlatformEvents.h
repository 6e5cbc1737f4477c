#pragma once

/// The platform's own events. Each comment says who publishes, who listens and what the payload
/// holds; `Payload.h` builds and reads payloads.
namespace events {

/// The map, whenever the cursor moves over it -> assistant. Keys N and E, map coordinates in
/// metres, separated by a blank.
inline constexpr const char* kXyChanged = "ON_XY_CHANGED";
/// The assistant -> status bar. The text to show, not a key list.
inline constexpr const char* kXyChangedText = "ON_XY_CHANGED_X";
/// Every long operation -> progress bar. "text=...,value=percent,is_exec=0", a caption with
/// "scroll=1", or "show=0" at the end.
inline constexpr const char* kProgress = "ON_PROGRESS_CHANGED_TO_STATUS_BAR";
/// A database adapter -> whoever started the query. Keys count and total.
inline constexpr const char* kDbQueryProcess = "ON_DB_QUERY_PROCESS";
/// Whoever changed the system status -> frame and map, which read it again. No payload.
inline constexpr const char* kUpdateSystemStatus = "UPDATE_SYSTEM_STATUS_EVENT";
/// The assistant after the base layers, project settings after a change -> layers and their list.
/// No payload.
inline constexpr const char* kSettingViewFinished = "ON_SETTING_VIEW_FINISHED";
/// Project settings after a change -> frame, which reads the system status again. No payload.
inline constexpr const char* kProjectChanged = "ON_PROJECT_CHANGED";
/// A layer whose items came, went or changed -> list of layers. No payload.
inline constexpr const char* kLayerItemsChanged = "ON_LAYER_ITEMS_CHANGED";
/// The boundary command -> map. No payload.
inline constexpr const char* kInitBoundaryRect = "ON_INIT_BOUNDARY_RECT";

} // namespace events
