#pragma once

class IDesktopHost;
class QString;
struct Problem;

// The point of a problem in the other windows. A problem of a line or a group has none.

/// "1001/10015001", or the line alone, as they are shown.
[[nodiscard]] QString problemName(const Problem& problem);

/// Selects the point in its table, which announces it. Without one nothing is selected any more.
/// \returns false when the project has the point no more
[[nodiscard]] bool selectProblem(IDesktopHost& host, const Problem& problem);

/// Brings the map close to the point.
void zoomToProblem(IDesktopHost& host, const Problem& problem);

/// Opens what has happened to the point.
void showHistoryOf(IDesktopHost& host, const Problem& problem);
