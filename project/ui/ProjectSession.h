#pragma once

class IDesktopHost;
class QString;
struct ProjectPlace;

/// What the project commands share: the project that is open, as status and events tell it.
namespace ProjectSession {

[[nodiscard]] bool isOpen();
/// The open project, from the system status.
[[nodiscard]] ProjectPlace place();

/// Asks whether the open project may be closed, and closes it.
/// \returns whether no project is open any more
bool closeCurrent(IDesktopHost& host);

/// Opens a project file while none is open. What the user has to know of a failure
/// or of an interrupted save stands in a message box.
bool open(IDesktopHost& host, const QString& file);

/// Whether the program may forget the open project: asks when its last saving failed.
[[nodiscard]] bool mayForget(IDesktopHost& host);

/// Sets the system status and the frame's title to this project.
void setStatus(IDesktopHost& host, const ProjectPlace& place);
void clearStatus(IDesktopHost& host);

} // namespace ProjectSession
