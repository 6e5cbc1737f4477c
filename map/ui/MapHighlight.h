#pragma once

class IDesktopHost;
class QPointF;

namespace desktop {

/// Marks a survey result on the map "DataMap", measured and design position with a line between
/// them, and moves the map until the measured one is in its middle. A map too coarse to tell the
/// two apart comes nearer, at least to 1 m a pixel; a finer one keeps its scale.
/// \param measured,design map coordinates
void highlightOnMap(IDesktopHost& host, const QPointF& measured, const QPointF& design);

} // namespace desktop
