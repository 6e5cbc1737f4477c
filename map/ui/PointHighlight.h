#pragma once

class IDesktopHost;
class IMapWindow;
class QPolygonF;
struct DesignPoint;
struct SurveyPoint;

/// The mark of the selected point on the map "DataMap": a blue cross on a measured position, a blue
/// ring around its designed one and a line between them; a red disc on a design point; a blue disc
/// on a base station.
namespace PointHighlight {

enum class Kind
{
    Result,
    Design,
    Station
};

/// Draws the mark in place of the present one.
/// \param positions map coordinates; of a result the measured one and, if there is one, the
///        designed one
void draw(IMapWindow& map, Kind kind, const QPolygonF& positions);
void clear(IMapWindow& map);
void clear(IDesktopHost& host);

/// Marks the point. The map moves, at its scale, only when the point is outside its view or under
/// another window, and is not brought to the front. A point whose position is no number leaves the
/// map without a mark.
void mark(IDesktopHost& host, const SurveyPoint& point);
void mark(IDesktopHost& host, const DesignPoint& point);
/// The same for a base station, counted from 0.
void markStation(IDesktopHost& host, int index);

/// Marks many points, thinned where they are thousands. The one nearest to their middle comes into
/// view, at the same scale. Positions that are no numbers are left out.
/// \param places map coordinates
/// \returns false, and leaves the map without a mark, when no position is left
bool markGroup(IDesktopHost& host, const QPolygonF& places);
/// The same; the map comes to the front and shows all of them.
void zoomToGroup(IDesktopHost& host, const QPolygonF& places);

/// Moves the map alone, and only when the point is outside its view.
void bringIntoView(IDesktopHost& host, const SurveyPoint& point);
void bringIntoView(IDesktopHost& host, const DesignPoint& point);

/// Marks the point in the middle of the map. The map zooms in until the measured and the designed
/// position can be told apart, at least to 1 m a pixel; a map that is finer already keeps its
/// scale. It comes to the front unless it would cover the list of such points.
void zoomTo(IDesktopHost& host, const SurveyPoint& point);
void zoomTo(IDesktopHost& host, const DesignPoint& point);

} // namespace PointHighlight
