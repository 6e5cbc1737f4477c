#pragma once

class IDesktopHost;
class QString;
struct Problem;

// What a problem is about, in the other windows: a point; of a problem without one, the points of
// its line, or the results of its base, rover or crew.

/// "1001/10015001", or the line alone, as they are shown.
[[nodiscard]] QString problemName(const Problem& problem);

/// Selects the point in its table, which announces it. Without one the map marks what it is about,
/// at its scale, and nothing is selected any more.
/// \returns false when the project has it no more
[[nodiscard]] bool selectProblem(IDesktopHost& host, const Problem& problem);

/// Brings the map close to the point, or shows all of what it is about.
void zoomToProblem(IDesktopHost& host, const Problem& problem);

/// Opens what has happened to the point.
void showHistoryOf(IDesktopHost& host, const Problem& problem);
