#include "lum_sdk/raster/Halo.h"

#include <QColor>
#include <QImage>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace lum {

namespace {

constexpr std::size_t kCell = 32; // pixels on a side; an empty cell is passed over
constexpr int kFarthest = 4;      // device pixels that a halo can be full
constexpr int kHaloBits = 7;
constexpr std::uint8_t kMost = 104; // of 128: a little of the picture shows through
constexpr std::size_t kChannels = sizeof(QRgb);

/// Whether something is drawn in the pixels of a cell, and in those around it as far as a halo
/// reaches: 255 in a pixel that is covered to the half or more, since a thin line between two
/// pixels gets a full halo, too.
class CellCover
{
public:
    explicit CellCover(int reach) : m_reach(reach) {}

    /// \returns false when nothing is drawn there
    [[nodiscard]] bool read(const QImage& drawing, int left, int top)
    {
        const int from = std::max(left - m_reach, 0);
        const int to = std::min(left + int(kCell) + m_reach, drawing.width());
        const auto count = std::size_t(to - from);
        m_alpha.fill(0);
        QRgb any = 0;
        const int end = std::min(top + int(kCell) + m_reach, drawing.height());
        for (int y = std::max(top - m_reach, 0); y < end; ++y) {
            const auto* const pixels = reinterpret_cast<const QRgb*>(drawing.constScanLine(y));
            any |= copyAlpha(pixels + from, &m_alpha[placeOf(y - top, from - left)], count);
        }
        return any != 0;
    }

    /// The cover of a pixel; those of its row follow. Numbers count from the cell's own first pixel
    /// on, so that they may be negative.
    [[nodiscard]] const std::uint8_t* at(int row, int column) const
    {
        return &m_alpha[placeOf(row, column)];
    }

private:
    static constexpr std::size_t kStride = kCell + 4 * std::size_t(kFarthest);

    /// \returns 0 when all pixels are empty
    static QRgb copyAlpha(const QRgb* pixels, std::uint8_t* alpha, std::size_t count)
    {
        QRgb any = 0;
        for (std::size_t i = 0; i < count; ++i)
            any |= pixels[i];
        if (any != 0) {
            for (std::size_t i = 0; i < count; ++i) {
                const auto twice = static_cast<std::int16_t>(pixels[i] >> 24 << 1);
                alpha[i] = static_cast<std::uint8_t>(twice < 255 ? twice : 255);
            }
        }
        return any;
    }

    [[nodiscard]] std::size_t placeOf(int row, int column) const
    {
        return std::size_t(row + m_reach) * kStride + std::size_t(column + m_reach);
    }

    int m_reach;
    std::array<std::uint8_t, kStride * kStride> m_alpha{};
};

/// Draws one cell after the other. Its loops count in whole numbers of 8 and 16 bits, of which the
/// processor handles many at a time.
class CellPainter
{
public:
    /// \param reach of the full halo, device pixels; the soft edge is as wide again
    CellPainter(int reach, const QColor& color) : m_reach(reach), m_cover(2 * reach)
    {
        const QRgb paper = color.rgb();
        for (std::size_t i = 0; i < m_paper.size(); i += kChannels)
            std::memcpy(&m_paper[i], &paper, kChannels);
    }

    void paint(QImage& picture, const QImage& drawing, int left, int top)
    {
        if (!m_cover.read(drawing, left, top))
            return;
        const int height = std::min(int(kCell), drawing.height() - top);
        const auto width = std::size_t(std::min(int(kCell), drawing.width() - left));
        for (int row = -2 * m_reach; row < height + 2 * m_reach; ++row)
            widenAcross(row);
        for (int row = 0; row < height; ++row) {
            widenDown(row);
            mix(picture.scanLine(top + row) + std::size_t(left) * kChannels,
                drawing.constScanLine(top + row) + std::size_t(left) * kChannels, width);
        }
    }

private:
    using Line = std::array<std::uint8_t, kCell>;

    struct Widened
    {
        Line full; ///< the greatest cover up to the reach away
        Line soft; ///< and up to twice the reach
    };

    Widened& widened(int row)
    {
        return m_across[static_cast<std::size_t>(row) + 2 * static_cast<std::size_t>(m_reach)];
    }

    [[nodiscard]] static Line greater(const Line& line, const std::uint8_t* other)
    {
        Line result;
        for (std::size_t x = 0; x < kCell; ++x)
            result[x] = line[x] > other[x] ? line[x] : other[x];
        return result;
    }

    void widenAcross(int row)
    {
        Line line{};
        for (int shift = -m_reach; shift <= m_reach; ++shift)
            line = greater(line, m_cover.at(row, shift));
        widened(row).full = line;
        for (int shift = m_reach + 1; shift <= 2 * m_reach; ++shift)
            line = greater(greater(line, m_cover.at(row, shift)), m_cover.at(row, -shift));
        widened(row).soft = line;
    }

    void widenDown(int row)
    {
        Line full{};
        Line soft{};
        for (int shift = -2 * m_reach; shift <= 2 * m_reach; ++shift) {
            soft = greater(soft, widened(row + shift).soft.data());
            if (std::abs(shift) <= m_reach)
                full = greater(full, widened(row + shift).full.data());
        }
        for (std::size_t x = 0; x < kCell; ++x) {
            const auto strong = static_cast<std::uint8_t>(full[x] >> 1);
            const auto weak = static_cast<std::uint8_t>(soft[x] >> 3);
            const std::uint8_t halo = strong > weak ? strong : weak;
            m_halo[x] = halo < kMost ? halo : kMost;
        }
    }

    /// Lays the halo over the pixels of the picture, and the drawing over both.
    /// \param width pixels
    void mix(uchar* picture, const uchar* drawing, std::size_t width) const
    {
        std::array<QRgb, kCell> pixels{};
        std::memcpy(pixels.data(), drawing, width * kChannels);
        std::array<QRgb, kCell> halo{};
        for (std::size_t x = 0; x < kCell; ++x) {
            halo[x] = inAllChannels(m_halo[x]);
            pixels[x] = inAllChannels(pixels[x] >> 24);
        }
        std::array<std::uint8_t, kCell * kChannels> halos{};
        std::array<std::uint8_t, kCell * kChannels> covers{};
        std::memcpy(halos.data(), halo.data(), sizeof halos);
        std::memcpy(covers.data(), pixels.data(), sizeof covers);
        for (std::size_t i = 0; i < width * kChannels; ++i) {
            const auto toPaper = static_cast<std::int16_t>((m_paper[i] - picture[i]) * halos[i]);
            const auto ground = static_cast<std::uint16_t>(picture[i] + (toPaper >> kHaloBits));
            const auto rest = static_cast<std::uint16_t>(256 - covers[i] - (covers[i] >> 7));
            const auto under = static_cast<std::uint16_t>(ground * rest + 128);
            picture[i] = static_cast<uchar>(drawing[i] + (under >> 8));
        }
    }

    static QRgb inAllChannels(std::uint32_t value)
    {
        return value | value << 8 | value << 16 | value << 24;
    }

    int m_reach;
    std::array<std::uint8_t, kCell * kChannels> m_paper{};
    CellCover m_cover;
    std::array<Widened, kCell + 4 * std::size_t(kFarthest)> m_across{};
    Line m_halo{}; ///< of 128
};

} // namespace

void drawWithHalo(QImage& picture, const QImage& drawing, const QColor& color)
{
    Q_ASSERT(picture.size() == drawing.size());
    const int reach = std::clamp(qRound(drawing.devicePixelRatio()), 1, kFarthest);
    CellPainter cell(reach, color);
    for (int top = 0; top < drawing.height(); top += int(kCell)) {
        for (int left = 0; left < drawing.width(); left += int(kCell))
            cell.paint(picture, drawing, left, top);
    }
}

} // namespace lum
