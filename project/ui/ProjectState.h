#pragma once

class IDesktopHost;
class QString;
struct ProjectPlace;

/// Which project is open, as the whole program sees it: the status keys "project_open",
/// "project_path" and "project_name", the title of the main frame, and the events that announce a
/// change. Only this file writes them. It also switches the base map off: each project begins
/// without one.
namespace ProjectState {

[[nodiscard]] bool isOpen();
/// The same, for who asks the data manager next: it may be gone while the program ends.
[[nodiscard]] bool hasData();
/// The open project.
[[nodiscard]] ProjectPlace place();

/// Whether this project file is the one that is open, by whatever path it is named.
[[nodiscard]] bool isOpen(const QString& file);

/// Shows in the title what is open, whether it is changed, and whether it can only be read.
void showTitle(IDesktopHost& host);

/// The data manager has read the project. Sets status and title first and publishes then, so that
/// every handler sees the new state: "REFRESH_DESIGN_LAYER", "REFRESH_SURVEY_LAYER",
/// "UPDATE_SYSTEM_STATUS_EVENT".
void opened(IDesktopHost& host, const ProjectPlace& place);

/// The data manager has forgotten the project. Does the same in the same order.
void closed(IDesktopHost& host);

} // namespace ProjectState
