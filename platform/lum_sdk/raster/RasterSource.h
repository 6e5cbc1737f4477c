#pragma once

#include "lum_sdk/raster/RasterInfo.h"

#include <QImage>

#include <functional>
#include <memory>

namespace lum {

/// Which of the library's drivers may open a name.
enum class RasterDrivers
{
    LocalFiles, ///< none that could send a request over the network
    All,        ///< map services as well
};

/// Asked now and then while a block is read; true ends the reading.
using RasterStop = std::function<bool()>;

/// An open raster that gives colours.
///
/// Palettes are looked up. One band is grey, three are red, green and blue. Bands of more than 8
/// bits are stretched, each from the 2nd to the 98th percentile of a sample. Alpha, mask and the
/// values for "no data" make pixels transparent; of several colour bands all must be without data.
///
/// It serves one thread at a time, also for its end; which one may change.
class RasterSource
{
public:
    /// \param name  a path, or what a driver takes for one, such as the XML of a map service
    /// \param fault  why it cannot be opened, a sentence in the user's language that names the file
    /// \returns null on failure
    [[nodiscard]] static std::unique_ptr<RasterSource>
    open(const QString& name, QString& fault, RasterDrivers drivers = RasterDrivers::LocalFiles);

    ~RasterSource();

    [[nodiscard]] const RasterInfo& info() const { return m_info; }

    /// One block of a level, as `RasterLevel::blockArea` cuts it.
    /// \param fault  why it cannot be read, in the library's words; empty when `stop` ended it
    /// \returns ARGB32 premultiplied, or RGB32 when all of it is opaque; null on failure
    [[nodiscard]] QImage readBlock(std::size_t level, int column, int row, QString& fault,
                                   const RasterStop& stop = {});

private:
    struct Dataset;

    explicit RasterSource(std::unique_ptr<Dataset> dataset);

    std::unique_ptr<Dataset> m_dataset;
    RasterInfo m_info;
};

} // namespace lum
