#pragma once

#include <QString>

namespace lum {

/// The tiles on the disk, as GDAL's drivers keep them: a file a tile, named by 32 hexadecimal
/// digits, in two levels of folders named by one. Other files in the folder are left alone.
///
/// All functions may run beside a base map that reads and writes there. A folder that does not
/// exist holds nothing.
class TileCache
{
public:
    explicit TileCache(const QString& folder) : m_folder(folder) {}

    [[nodiscard]] qint64 sizeBytes() const;
    /// Removes all tiles. \returns an empty text, or why some are still there
    [[nodiscard]] QString clear() const;
    /// Removes the oldest tiles when there is more than the limit, until a fifth of it is free.
    void trim(qint64 limitBytes) const;

private:
    QString m_folder;
};

} // namespace lum
