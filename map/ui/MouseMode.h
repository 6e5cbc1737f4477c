#pragma once

class IMapWindow;

/// What the left mouse button does on the map, by the system status "operateReator".
namespace MouseMode {

inline constexpr int kPick = 0;
inline constexpr int kPan = 1;
inline constexpr int kZoomRect = 2;

[[nodiscard]] int current();
void set(int mode);

/// Back from `mode` to picking, when it is the current one, with the cursor for it. The reactors
/// are the caller's business.
void end(IMapWindow& map, int mode);

/// Puts the reactors for picking back.
void installPicking(IMapWindow& map);

} // namespace MouseMode
