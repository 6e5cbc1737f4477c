#pragma once

#include <QRect>

class QPainter;
class QString;

namespace lum {

/// Names the sources of what a map shows, in the lower right corner of a screen of this size, on
/// paper that lets a little of the map through. A long text breaks. Draws nothing for an empty one.
/// \param taken where something stands already, in the lower left corner: the text stays beside it,
///        or above it when there is not half of the screen beside it
void drawAttribution(QPainter& painter, const QSize& screen, const QString& text,
                     const QRect& taken = {});

} // namespace lum
