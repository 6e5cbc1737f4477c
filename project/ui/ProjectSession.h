#pragma once

#include "protocol/Outcome.h"

class IDesktopHost;
struct ProjectPlace;

/// How the commands open and close a project, with the questions to the user.
namespace ProjectSession {

/// Opens a project while none is open, and puts it first in the list of recent projects.
Outcome open(IDesktopHost& host, const ProjectPlace& place);
/// The same for a project file. A message box shows a failure, or the notice of a success.
void openFile(IDesktopHost& host, const QString& file);

/// Asks whether to save the open project, saves it and tells how that ended.
void save(IDesktopHost& host);

/// Asks whether the open project may be closed, and closes it by the command "Close Project".
/// \returns whether no project is open any more
[[nodiscard]] bool closeCurrent(IDesktopHost& host);

/// Offers to save the open project before it is closed. When that fails, asks whether the changes
/// may be lost.
/// \returns whether the project may be forgotten; false when the user cancelled
[[nodiscard]] bool offerSave(IDesktopHost& host);

/// Closes the open project as it is, without a question.
void forget(IDesktopHost& host);

} // namespace ProjectSession
