#pragma once

#include <QImage>
#include <QPoint>

#include <functional>

/// Where the values of an axis are on a picture.
struct PixelScale
{
    double from = 0; ///< a value
    double at = 0;   ///< its place, device pixels
    double perUnit = 1;

    [[nodiscard]] double operator()(double value) const { return at + (value - from) * perUnit; }
    [[nodiscard]] PixelScale moved(double pixels) const { return {from, at + pixels, perUnit}; }
};

/// A picture of many marks that is kept. When it is asked for at a place some whole pixels away,
/// only what comes into sight is drawn; a part of a pixel is rounded.
class MarkPicture
{
public:
    struct Place
    {
        QSize size; ///< device pixels, with a margin of `margin` on each side
        PixelScale x;
        PixelScale y;
    };
    /// Draws all marks on a transparent picture, those in its margin need not be whole.
    using Draw = std::function<void(QImage& picture, const PixelScale& x, const PixelScale& y)>;

    /// \param margin that the marks of the picture's edge reach to
    [[nodiscard]] const QImage& at(const Place& place, int margin, const Draw& draw);
    /// To be called when the marks are others.
    void forget() { m_picture = {}; }

private:
    [[nodiscard]] bool hasSameScale(const Place& place) const;
    void moveTo(const QPoint& shift, int margin, const Draw& draw);
    void renew(const QRect& part, int margin, const Draw& draw);

    QImage m_picture;
    Place m_place;  ///< at which it was drawn as a whole
    QPoint m_shift; ///< from there to where it is now
};
