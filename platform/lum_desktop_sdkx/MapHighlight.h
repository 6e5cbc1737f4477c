#pragma once

class IDesktopHost;
class QPointF;

namespace desktop {

/// Marks a survey result on the map "DataMap", measured and design position with a line between
/// them, and moves the map until the measured one is in its middle; the scale stays.
/// \param measured,design map coordinates
void highlightOnMap(IDesktopHost& host, const QPointF& measured, const QPointF& design);

} // namespace desktop
