#pragma once

#include <QImage>

#include <optional>
#include <span>
#include <vector>

/// How the values of a raster become colours. Nothing here reads a file.
namespace lum {

/// The values that are shown as the darkest and the brightest; those beyond are cut off.
struct Stretch
{
    double low = 0;
    double high = 255;
};

/// The 2nd and the 98th percentile of a sample, by nearest rank. When they are equal, the whole
/// range; one value only is shown as a middle grey. NaN and infinite values do not count.
[[nodiscard]] Stretch stretchOf(std::vector<float> sample);

/// The value that means "no data", NaN always does.
using NoData = std::optional<float>;

/// Turns values into bytes.
/// \param hasData  gets 255 where there is a value, and stays elsewhere
void stretchPlane(std::span<const float> values, const Stretch& stretch, const NoData& noData,
                  std::span<uchar> bytes, std::span<uchar> hasData);

/// Sets 255 where the value is not the one that means "no data".
void markData(std::span<const uchar> bytes, const NoData& noData, std::span<uchar> hasData);

/// One byte a pixel; grey when the three are the same plane.
struct ColorPlanes
{
    std::span<const uchar> red;
    std::span<const uchar> green;
    std::span<const uchar> blue;
    std::span<const uchar> alpha; ///< empty when all is opaque
};

/// \returns ARGB32 premultiplied, or RGB32 when all of it is opaque
[[nodiscard]] QImage imageOf(const QSize& size, const ColorPlanes& planes);

/// \param palette  not premultiplied; an index beyond it is transparent
/// \param alpha  as in `ColorPlanes`
[[nodiscard]] QImage imageOf(const QSize& size, std::span<const quint16> indexes,
                             std::span<const QRgb> palette, std::span<const uchar> alpha);

} // namespace lum
