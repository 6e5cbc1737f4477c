#pragma once

#include "lum_sdk/raster/BaseMap.h"

#include <optional>
#include <vector>

class QByteArray;

namespace lum {

/// The base maps that a user can choose from: the installed ones with the user's changes over them,
/// then the user's own. The user's file holds only what differs from the installed file:
///
///     <base_maps>
///       <base_map installed="Relief" hidden="1"/>
///       <base_map installed="Streets" address="https://tiles.example.org/{z}/{x}/{y}.png"/>
///       <base_map name="Site photo" kind="satellite" address="/data/site.mbtiles"
///                 attribution="© Example Surveys"/>
///     </base_maps>
///
/// The attributes are those of `BaseMap`: name, kind (road, satellite or terrain), address,
/// least_zoom, greatest_zoom, tile_size, attribution, keep_tiles.
class BaseMapList
{
public:
    struct Entry
    {
        BaseMap map;
        std::optional<BaseMap> installed; ///< as it was installed; nothing for the user's own
        bool isHidden = false;            ///< in the list, but not offered
    };

    /// Reads the installed list in place of what was there.
    /// \returns an empty text, or what is wrong and in which line; the list is as it was then
    [[nodiscard]] QString readInstalled(const QByteArray& xml);
    /// Reads the user's list over the installed one; the same otherwise. Changes of a base map that
    /// is not installed any more are passed over.
    [[nodiscard]] QString readUsers(const QByteArray& xml);
    /// The user's list as a file.
    [[nodiscard]] QByteArray writeUsers() const;

    [[nodiscard]] const std::vector<Entry>& entries() const { return m_entries; }
    void set(std::vector<Entry> entries) { m_entries = std::move(entries); }

    /// An entry that is offered, by its name in any case of letters; null when there is none.
    [[nodiscard]] const BaseMap* find(const QString& name) const;
    /// The first entry of a kind that is offered; null when there is none.
    [[nodiscard]] const BaseMap* first(BaseMapKind kind) const;

private:
    std::vector<Entry> m_entries;
};

/// The word of a kind in files: "road", "satellite" or "terrain".
[[nodiscard]] QString wordOf(BaseMapKind kind);

} // namespace lum
