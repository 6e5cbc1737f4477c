#pragma once

class IDesktopHost;
struct HistoryItem;

/// Shows the point of a change of the history in the other windows. A change of parameters has
/// none.
namespace PointVisit {

/// Selects it in its table; the status bar says when the project does not have it now.
void select(IDesktopHost& host, const HistoryItem& item);
/// Shows it on the map.
void zoomTo(IDesktopHost& host, const HistoryItem& item);

} // namespace PointVisit
