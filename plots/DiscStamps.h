#pragma once

#include <QColor>
#include <QImage>
#include <QPen>

#include <cstdint>
#include <vector>

/// A disc in the middle of a small image, to be copied to whole pixels: several times quicker than
/// `QPainter::drawImage`, which a picture that follows the mouse would feel.
class Disc
{
public:
    /// \param radius device pixels
    Disc(double radius, const QPen& pen, const QColor& color);

    /// How many pixels it reaches beyond the one in its middle.
    [[nodiscard]] int half() const { return m_half; }
    /// \param middle of the place to copy it to, at least `half` pixels away from the edges
    /// \param stride pixels of a line there
    void copyTo(QRgb* middle, std::ptrdiff_t stride) const;

private:
    /// With a `Half` that the compiler knows the loops are unrolled; 0 stands for any.
    template <int Half>
    void copy(QRgb* middle, std::ptrdiff_t stride) const;

    int m_half;
    QImage m_image;
};

/// Stamps discs on an image. Each pixel is the middle of at most one disc of a colour.
class DiscPainter
{
public:
    /// \param image of the format `QImage::Format_ARGB32_Premultiplied`
    /// \param room  device pixels that are free around the middles; no disc's `half` is larger
    DiscPainter(QImage& image, int room);

    /// \param atX, atY device pixels of the image
    void add(double atX, double atY, const Disc& disc, std::uint8_t color)
    {
        if (!(atX >= m_room && atX < m_right && atY >= m_room && atY < m_bottom))
            return;
        const std::ptrdiff_t pixel = std::ptrdiff_t(atY) * m_width + std::ptrdiff_t(atX);
        std::uint8_t& last = m_last[std::size_t(pixel)];
        if (last == color)
            return;
        last = color;
        disc.copyTo(m_pixels + pixel, m_width);
    }

private:
    QRgb* m_pixels; ///< lines of 32-bit pixels follow each other without a gap
    std::ptrdiff_t m_width;
    double m_room;
    double m_right;
    double m_bottom;
    std::vector<std::uint8_t> m_last; ///< by pixel; 0 for none
};
