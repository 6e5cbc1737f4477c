#pragma once

class IDesktopHost;

namespace lum {
struct BaseMap;
} // namespace lum

/// Switches the base map of the map "DataMap" on and off, by the system status "useGrid". The layer
/// "OnlineMap" follows it.
namespace BaseMapSwitch {

/// Whether a base map has a place: there is a map, and the open project has a coordinate system.
[[nodiscard]] bool isPossible(IDesktopHost& host);
[[nodiscard]] bool isOn(IDesktopHost& host);

/// Shows this base map and remembers the choice. Tells in the status bar where it comes from; when
/// it cannot be used, why, and nothing changes.
void turnOn(IDesktopHost& host, const lum::BaseMap& map);
void turnOff(IDesktopHost& host);

/// Fetches the base map anew, when it is on.
void restart(IDesktopHost& host);

} // namespace BaseMapSwitch
