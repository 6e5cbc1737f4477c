#pragma once

class IMapWindow;
class QRectF;

/// What the user sees of the map, screen points: the largest part beside the windows over it; all
/// of it when nothing is free.
[[nodiscard]] QRectF freePart(const IMapWindow& map);
