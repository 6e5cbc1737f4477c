#include "lum_sdk/raster/PixelWalk.h"

#include <array>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace lum {

namespace {

// Shares are 128ths, so that a difference of two channels times a share fits into 16 bits.
constexpr int kShareBits = 7;
constexpr int kShares = 1 << kShareBits;

int shareOf(int place)
{
    return (place >> (PixelWalk::kShift - kShareBits)) & (kShares - 1);
}

const QRgb* pixelAt(const PixelWalk& walk)
{
    return walk.image + (walk.y >> PixelWalk::kShift) * walk.stride + (walk.x >> PixelWalk::kShift);
}

void advance(PixelWalk& walk)
{
    walk.x += walk.stepX;
    walk.y += walk.stepY;
}

#ifdef __SSE2__

/// Each share in eight lanes.
struct ShareTable
{
    alignas(16) std::array<std::array<short, 8>, kShares> lanes{};
};

constexpr ShareTable makeShares()
{
    ShareTable table;
    for (std::size_t share = 0; share < kShares; ++share)
        table.lanes[share].fill(static_cast<short>(share));
    return table;
}

constexpr ShareTable kTable = makeShares();

__m128i lanesOf(int share)
{
    const short* const lanes = kTable.lanes[static_cast<std::size_t>(share)].data();
    return _mm_load_si128(reinterpret_cast<const __m128i*>(lanes)); // NOLINT(*-reinterpret-cast)
}

/// Two pixels in a row, 16 bits a channel.
__m128i pairAt(const QRgb* pixel)
{
    const __m128i bytes =
        _mm_loadl_epi64(reinterpret_cast<const __m128i*>(pixel)); // NOLINT(*-reinterpret-cast)
    return _mm_unpacklo_epi8(bytes, _mm_setzero_si128());
}

__m128i mixed(__m128i a, __m128i b, __m128i share)
{
    const __m128i part = _mm_mullo_epi16(_mm_sub_epi16(b, a), share);
    return _mm_add_epi16(a, _mm_srai_epi16(part, kShareBits));
}

#else

/// \param shift  of the channel
int mixedChannel(const PixelWalk& walk, const QRgb* pixel, int shift)
{
    const auto channel = [shift](QRgb color) { return static_cast<int>((color >> shift) & 0xffU); };
    const auto mixed = [](int a, int b, int share) {
        return a + (((b - a) * share) >> kShareBits);
    };
    const QRgb* const below = pixel + walk.stride;
    const int shareY = shareOf(walk.y);
    return mixed(mixed(channel(pixel[0]), channel(below[0]), shareY),
                 mixed(channel(pixel[1]), channel(below[1]), shareY), shareOf(walk.x));
}

#endif

} // namespace

void copyPixels(PixelWalk walk, int count, QRgb* out)
{
    for (int i = 0; i < count; ++i, advance(walk))
        out[i] = *pixelAt(walk);
}

#ifdef __SSE2__

void mixPixels(PixelWalk walk, int count, QRgb* out)
{
    for (int i = 0; i < count; ++i, advance(walk)) {
        const QRgb* const pixel = pixelAt(walk);
        const __m128i shareX = lanesOf(shareOf(walk.x));
        const __m128i shareY = lanesOf(shareOf(walk.y));
        const __m128i column = mixed(pairAt(pixel), pairAt(pixel + walk.stride), shareY);
        const __m128i color = mixed(column, _mm_unpackhi_epi64(column, column), shareX);
        out[i] = static_cast<QRgb>(_mm_cvtsi128_si32(_mm_packus_epi16(color, color)));
    }
}

#else

void mixPixels(PixelWalk walk, int count, QRgb* out)
{
    for (int i = 0; i < count; ++i, advance(walk)) {
        const QRgb* const pixel = pixelAt(walk);
        out[i] = qRgba(mixedChannel(walk, pixel, 16), mixedChannel(walk, pixel, 8),
                       mixedChannel(walk, pixel, 0), mixedChannel(walk, pixel, 24));
    }
}

#endif

} // namespace lum
