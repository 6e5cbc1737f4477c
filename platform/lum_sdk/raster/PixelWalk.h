#pragma once

#include <QColor>

#include <cstddef>

namespace lum {

/// A straight walk over an image: a place for each pixel that is taken from it.
///
/// Places are counted in 65536ths of a pixel; (0, 0) is the outer corner of the first pixel, or its
/// centre when pixels are mixed. All places, and for `mixPixels` the next pixels to the right and
/// below, must lie in the image.
struct PixelWalk
{
    static constexpr int kShift = 16;

    const QRgb* image = nullptr;
    std::ptrdiff_t stride = 0; ///< pixels from line to line
    int x = 0;
    int y = 0;
    int stepX = 0;
    int stepY = 0;
};

/// Takes the pixel at each place.
void copyPixels(PixelWalk walk, int count, QRgb* out);

/// Mixes the four pixels around each place by their distance, each channel by itself.
void mixPixels(PixelWalk walk, int count, QRgb* out);

} // namespace lum
