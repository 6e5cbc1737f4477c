#pragma once

class IMapWindow;

/// What the left mouse button does on the map, by the system status "operateReator".
namespace MouseMode {

inline constexpr int kPick = 0;
inline constexpr int kPan = 1;
inline constexpr int kZoomRect = 2;

[[nodiscard]] int current();
void set(int mode);

/// If `mode` is the current one, sets the mode back to picking and the cursor to the arrow. The
/// reactors stay.
void end(IMapWindow& map, int mode);

/// Installs the reactors that pick points.
void installPicking(IMapWindow& map);

} // namespace MouseMode
