#pragma once

#include "map/sheet/MapSheet.h"

class IDesktopHost;

/// What the map window shows of the open project, as a sheet: design or survey with the user's
/// colours and parts, the boundary, the overlays, and the base map while it is on. It follows what
/// is shown now, and not what comes later. Layers that are switched off are left out.
[[nodiscard]] MapSheet shownMap(IDesktopHost& host);
