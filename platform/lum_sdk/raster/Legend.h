#pragma once

#include <QColor>
#include <QRect>
#include <QString>

#include <cstddef>
#include <vector>

class QPainter;

namespace lum {

/// What the colours of a map mean.
struct Legend
{
    struct Entry
    {
        QColor color;
        QString text;
        std::size_t count = 0; ///< of the marks in this colour
    };

    QString title;
    std::vector<Entry> entries; ///< from top to bottom
};

/// Draws a legend in the upper left corner of a screen of this size, on paper that lets a little of
/// the map through. A long text is shortened in its middle, and what has no room below is replaced
/// by "...". Draws nothing for a legend without entries, or on a screen that is too small.
/// \returns the place that it takes; empty when nothing was drawn
QRect drawLegend(QPainter& painter, const QSize& screen, const Legend& legend);

} // namespace lum
