#pragma once

#include "basalt_utilities/Dictionary.h"

class IDesktopHost;
class QPointF;
struct DesignPoint;
struct SurveyPoint;

/// Highlights one measured point on the map "DataMap".
namespace PointHighlight {

/// Of an overlay whose first vertex is a measured position, the second the designed one.
[[nodiscard]] basalt::Dictionary properties();

/// Draws a blue cross on the measured position, a blue ring around the designed one and a line
/// between them, and puts the measured position in the middle of the map. The map zooms in until
/// the two positions can be told apart, at least to 1 m a pixel. A map that is finer already keeps
/// its scale.
/// \param measured where the point was measured, map coordinates
/// \param design where the point was designed, map coordinates; the measured position again for a
///        point without a design position, which gets no ring
void show(IDesktopHost& host, const QPointF& measured, const QPointF& design);

/// Marks the point. The map moves, at its scale, only when the point is outside its view; it is not
/// brought to the front.
void mark(IDesktopHost& host, const SurveyPoint& point);
void mark(IDesktopHost& host, const DesignPoint& point);

/// Marks the point and zooms the map to it.
void zoomTo(IDesktopHost& host, const SurveyPoint& point);
void zoomTo(IDesktopHost& host, const DesignPoint& point);

} // namespace PointHighlight
