#pragma once

#include "lum_sdk/raster/BaseMapList.h"

#include <QString>

// The base maps of this program and this user, and what the user chose of them. All of it belongs
// to the GUI thread.

namespace settings {

/// The name of the base map that was shown last; "" before the first.
inline constexpr const char* kBaseMap = "base_map";
/// The most that tiles may take on the disk, MB; "256".
inline constexpr const char* kTileCacheMb = "base_map_cache_mb";

} // namespace settings

namespace lum {

/// The list of this user, read from "base_maps.xml" of the installation and of the user's settings
/// when it is first asked for. What cannot be read is logged and left out.
[[nodiscard]] const BaseMapList& userBaseMaps();

/// What is wrong with the user's file, a sentence; empty when it was read.
[[nodiscard]] QString userBaseMapsFault();

/// Makes this the user's list, in the file too. A file that could not be read is kept beside it
/// under another name.
/// \returns an empty text, or why the file cannot be written; the list holds all the same
QString setUserBaseMaps(std::vector<BaseMapList::Entry> entries);

/// Reads both files again.
void rereadUserBaseMaps();

/// The base map that was shown last; null when it is not offered any more, and before the first.
[[nodiscard]] const BaseMap* lastBaseMap();
/// That one, or the first of the list; null when no base map is offered.
[[nodiscard]] const BaseMap* chosenBaseMap();
/// The one of a kind that was shown last, or the first of the kind; null when there is none.
[[nodiscard]] const BaseMap* chosenBaseMap(BaseMapKind kind);
/// Remembers the choice in the user's settings.
void chooseBaseMap(const BaseMap& map);

/// How this program fetches tiles: under its own name, version and home page ("name", "version" and
/// "homepage" of the configuration), into the user's folder for what can be fetched again.
[[nodiscard]] TileFetching userTileFetching();

} // namespace lum
