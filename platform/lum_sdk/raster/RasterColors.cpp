#include "lum_sdk/raster/RasterColors.h"

#include <algorithm>
#include <cmath>

namespace lum {

namespace {

constexpr double kCutShare = 0.02;

/// The smallest value that a share of the sample does not exceed.
float percentile(std::vector<float>& sample, double share)
{
    const auto rank =
        static_cast<std::ptrdiff_t>(std::ceil(share * static_cast<double>(sample.size())) - 1);
    const auto place = sample.begin() + std::max<std::ptrdiff_t>(rank, 0);
    std::nth_element(sample.begin(), place, sample.end());
    return *place;
}

QImage emptyImage(const QSize& size, bool isOpaque)
{
    return {size, isOpaque ? QImage::Format_RGB32 : QImage::Format_ARGB32_Premultiplied};
}

bool isOpaque(std::span<const uchar> alpha)
{
    return std::all_of(alpha.begin(), alpha.end(), [](uchar value) { return value == 255; });
}

/// The pixels of an image that was just made, all lines in one: they have no padding.
std::span<QRgb> pixelsOf(QImage& image)
{
    const auto count = static_cast<std::size_t>(image.width()) * std::size_t(image.height());
    return {reinterpret_cast<QRgb*>(image.bits()), count}; // NOLINT(*-reinterpret-cast)
}

} // namespace

Stretch stretchOf(std::vector<float> sample)
{
    std::erase_if(sample, [](float value) { return !std::isfinite(value); });
    if (sample.empty())
        return {};
    Stretch found{percentile(sample, kCutShare), percentile(sample, 1 - kCutShare)};
    if (found.high > found.low)
        return found;
    const auto [least, greatest] = std::minmax_element(sample.begin(), sample.end());
    if (*greatest > *least)
        return {*least, *greatest};
    return {*least - 1.0, *least + 1.0};
}

void stretchPlane(std::span<const float> values, const Stretch& stretch, const NoData& noData,
                  std::span<uchar> bytes, std::span<uchar> hasData)
{
    const double factor = 255 / (stretch.high - stretch.low);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const float value = values[i];
        if (std::isnan(value) || value == noData)
            continue;
        hasData[i] = 255;
        const double shown = std::clamp((value - stretch.low) * factor, 0.0, 255.0);
        bytes[i] = static_cast<uchar>(std::lround(shown));
    }
}

void markData(std::span<const uchar> bytes, const NoData& noData, std::span<uchar> hasData)
{
    const float gap = noData.value_or(-1);
    for (std::size_t i = 0; i < bytes.size(); ++i)
        hasData[i] = static_cast<uchar>(hasData[i] | (float(bytes[i]) == gap ? 0 : 255));
}

QImage imageOf(const QSize& size, const ColorPlanes& planes)
{
    const bool opaque = isOpaque(planes.alpha);
    QImage image = emptyImage(size, opaque);
    if (image.isNull())
        return image;
    const std::span<QRgb> pixels = pixelsOf(image);
    const uchar* const red = planes.red.data();
    const uchar* const green = planes.green.data();
    const uchar* const blue = planes.blue.data();
    if (opaque) {
        for (std::size_t i = 0; i < pixels.size(); ++i)
            pixels[i] = qRgb(red[i], green[i], blue[i]);
    } else {
        for (std::size_t i = 0; i < pixels.size(); ++i)
            pixels[i] = qPremultiply(qRgba(red[i], green[i], blue[i], planes.alpha[i]));
    }
    return image;
}

QImage imageOf(const QSize& size, std::span<const quint16> indexes, std::span<const QRgb> palette,
               std::span<const uchar> alpha)
{
    bool opaque = isOpaque(alpha);
    QImage image = emptyImage(size, false);
    if (image.isNull())
        return image;
    const std::span<QRgb> pixels = pixelsOf(image);
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        const QRgb color = indexes[i] < palette.size() ? palette[indexes[i]] : 0;
        const int share = alpha.empty() ? 255 : alpha[i];
        const int visible = qAlpha(color) * share / 255;
        opaque = opaque && visible == 255;
        pixels[i] = qPremultiply(qRgba(qRed(color), qGreen(color), qBlue(color), visible));
    }
    return opaque ? std::move(image).convertToFormat(QImage::Format_RGB32) : image;
}

} // namespace lum
