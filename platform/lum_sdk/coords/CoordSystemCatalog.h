#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// A projected coordinate system of the EPSG register.
struct CoordSystemEntry
{
    std::string code; ///< "32650"
    std::string name; ///< "WGS 84 / UTM zone 50N"
    std::string area; ///< where it is used, in words
    double westDeg = 0;
    double southDeg = 0;
    double eastDeg = 0;
    double northDeg = 0;
};

/// The projected systems of PROJ's EPSG database that `fillFromEpsg` (EpsgSystem.h) can describe,
/// without deprecated ones; read once, then searched in memory.
class CoordSystemCatalog
{
public:
    /// Reads the database, which takes some 0.1 s.
    CoordSystemCatalog();

    /// Systems found by the beginning of a code ("EPSG:" may stand before it), or by words that all
    /// occur in name or area, whatever their case and order; "GK" stands for Gauss-Kruger too.
    /// Exact codes and names come first, then names that begin with the text; then systems on WGS
    /// 84, then shorter names.
    [[nodiscard]] std::vector<const CoordSystemEntry*> search(std::string_view text,
                                                              std::size_t limit = 100) const;

    [[nodiscard]] std::span<const CoordSystemEntry> entries() const { return m_entries; }

private:
    std::vector<CoordSystemEntry> m_entries;
    std::vector<std::string> m_names; ///< of the entries, in small letters, for the search
    std::vector<std::string> m_areas;
};
