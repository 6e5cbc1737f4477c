#pragma once

#include <QImage>
#include <QRect>

#include <array>
#include <span>
#include <vector>

namespace lum {

/// A piece of a level, put together from blocks, from which pixels of the picture are taken.
class RasterPatch
{
public:
    /// \param area  pixels of the level; may reach beyond it
    /// \param level  the size of the level
    /// \param hasGaps  nothing may be known of some pixels, which are transparent then
    void start(const QRect& area, const QSize& level, bool hasGaps);

    /// Uses the block itself when it holds the whole area, which saves copying.
    /// \param place  the pixels of the level that the block has
    [[nodiscard]] bool takeWhole(const QImage& block, const QRect& place);

    /// Copies what the block has of the area.
    void add(const QImage& block, const QRect& place);
    /// The same from a block of another level, of which every pixel becomes several.
    /// \param otherLevel  the size of that level
    void addStretched(const QImage& block, const QRect& place, const QSize& otherLevel);

    /// Repeats the outermost pixels of the level in what lies beyond it, for sampling at its edges.
    void finish();

    [[nodiscard]] bool isOpaque() const { return m_isOpaque; }

    enum class Sampling
    {
        Nearest,
        Bilinear,
    };

    /// Fills an image. What lies beyond the level becomes transparent.
    /// \param corners  the places of the image's corners in pixels of the level, joined bilinearly:
    ///        upper left, upper right, lower left, lower right
    /// \returns whether all of it was filled
    bool sample(const std::array<QPointF, 4>& corners, Sampling sampling, QImage& image) const;

private:
    void allocate();
    /// \param left,right  the places of the line's ends
    bool sampleLine(const QPointF& left, const QPointF& right, Sampling sampling,
                    std::span<QRgb> line) const;

    QRect m_area;
    QRect m_level;
    QRect m_inside; ///< the part of the area that the level has
    bool m_isOpaque = true;
    std::vector<QRgb> m_pixels;
    QImage m_whole; ///< instead of `m_pixels`
    const QRgb* m_first = nullptr;
    std::ptrdiff_t m_stride = 0; ///< pixels from line to line
};

} // namespace lum
