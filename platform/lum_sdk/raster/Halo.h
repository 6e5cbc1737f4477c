#pragma once

class QColor;
class QImage;

namespace lum {

/// Draws `drawing` on `picture`, with a halo under all that is drawn there: a soft edge of about
/// two screen pixels in this colour, so that texts and lines can be read on any ground.
///
/// The drawing covers all halos. The time depends on the size of the image and of the parts that
/// hold something, not on how much is drawn there.
/// \param picture of 32 bits a pixel, without alpha or premultiplied
/// \param drawing of the same size, in the format ARGB32_Premultiplied; the halo's width follows
///        from its ratio of device pixels
void drawWithHalo(QImage& picture, const QImage& drawing, const QColor& color);

} // namespace lum
