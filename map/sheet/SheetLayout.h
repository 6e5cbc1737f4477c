#pragma once

#include "lum_sdk/Transform.h"

#include <QRect>
#include <QRectF>
#include <QStringList>

#include <vector>

struct SheetSetup;

/// Where all parts of a sheet stand.
///
/// There are two units: dots of the printer or picture, on which the map's frame lies exactly, and
/// pixels of 1/96 inch, in which everything is drawn, so that a map on paper looks as it does on a
/// usual screen. Both count from the upper left corner of the paper.
struct SheetLayout
{
    explicit SheetLayout(const SheetSetup& setup);

    /// One of the fields below the map.
    struct Field
    {
        QRectF place; ///< pixels
        QString caption;
        QStringList lines;
    };

    double ratio;         ///< dots to a pixel
    double typeScale = 1; ///< of all texts but those of the data: 1 on A4, larger on larger paper
    QSize page;           ///< dots
    QRect map;            ///< the inner edge of the map's frame, dots
    QRectF frame;         ///< the same in pixels
    QRectF titlePlace;    ///< pixels; empty without a title
    QStringList title;    ///< its lines
    std::vector<Field> fields;
    double padding = 0; ///< from the edge of a field to its texts, pixels

    double scale = 1;    ///< 1:scale
    bool isWhole = true; ///< the whole area is seen
    /// Map coordinates to pixels from the map's upper left corner. Its size may be larger than the
    /// map by less than a pixel.
    Transform view;

    /// The same for the part of the map from a row of dots on.
    [[nodiscard]] Transform viewFrom(int row, int rows) const;
    /// The part of the map that is seen.
    [[nodiscard]] QRectF visibleExtent() const;

private:
    /// Brings the middle of an area to the middle of the map.
    /// \param pixel map units to a pixel
    void lookAt(const QRectF& area, double pixel);
};
