#pragma once

#include "lum_sdk/raster/RasterInfo.h"
#include "lum_sdk/raster/RasterPainting.h"

#include <QMutex>
#include <QString>

#include <memory>
#include <optional>

namespace lum {

class RasterSource;

/// A raster file on the map.
///
/// It is opened at once, by whichever thread makes it. `paint` reads the blocks that it needs
/// itself, nearest to the centre first, until the view's deadline, and is for one thread at a time;
/// the other functions may run beside it. Who paints on a worker shares the object with it, so that
/// removing the image from a list does not end it during a paint.
class RasterImage
{
public:
    explicit RasterImage(const QString& path);
    ~RasterImage();
    RasterImage(const RasterImage&) = delete;
    RasterImage& operator=(const RasterImage&) = delete;

    [[nodiscard]] const QString& path() const { return m_path; }

    /// Whether it was opened and lies somewhere; otherwise `fault` says why not.
    [[nodiscard]] bool isUsable() const { return m_isUsable; }

    /// What is wrong, a sentence in the user's language that names the file: it cannot be opened,
    /// has no place, or parts of it cannot be read, which a paint finds. Empty when nothing is
    /// known to be wrong.
    [[nodiscard]] QString fault() const;

    /// Of an image that could not be opened, an empty one.
    [[nodiscard]] const RasterInfo& info() const { return m_info; }

    /// The rectangle around the image, in map coordinates of a project with this coordinate system;
    /// null when it lies nowhere there. The first call for a system takes up to some 50 ms.
    [[nodiscard]] QRectF extent(const IDictionary& system) const;

    /// \param opacity  0 to 1
    /// \returns false when the deadline came before everything was read; what is missing is shown
    /// by
    ///          a coarser version. Parts that cannot be read are not missing; `fault` tells of
    ///          them.
    bool paint(const RasterView& view, QPainter& painter, double opacity = 1);

private:
    class Blocks;

    void noteFault(const QString& reason);
    /// Opens the file a second time when that was not tried yet.
    [[nodiscard]] bool hasHelper();

    QString m_path;
    RasterInfo m_info;
    bool m_isUsable = false;
    quint64 m_owner = 0; ///< of the blocks in the cache

    // only for `paint`
    std::unique_ptr<RasterSource> m_source;
    std::unique_ptr<RasterSource> m_helper; ///< a second handle, for a second thread
    bool m_isHelperTried = false;
    std::unique_ptr<RasterPlace> m_place;

    mutable QMutex m_mutex; // guards the members below
    QString m_fault;
    mutable std::optional<basalt::Dictionary> m_extentSystem; ///< the system that `m_extent` is for
    mutable QRectF m_extent;
};

} // namespace lum
