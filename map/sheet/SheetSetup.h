#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/coords/ShownUnit.h"
#include "map/sheet/Paper.h"

#include <QDate>
#include <QRectF>
#include <QString>

#include <optional>

/// What a sheet is to look like.
struct SheetSetup
{
    Paper paper{"A4", 210, 297};
    bool isLandscape = false;
    /// 4000 for 1:4000; nothing for the largest round one at which the whole area is seen.
    std::optional<double> scale;
    double dpi = 300; ///< dots to an inch, at least `kLeastDpi`
    QRectF area;      ///< what is to be seen, map coordinates; its middle comes to the map's middle

    QString title; ///< may be empty, or much too long
    QString project;
    QString systemName; ///< of the coordinate system, as the user reads it
    QDate date;

    basalt::Dictionary system; ///< the project's coordinate system; may be empty
    lum::ShownUnit unit;       ///< of the grid, and of the scale bar
};

/// The smallest and the largest number of a scale: 1:10 and 1:100,000,000.
inline constexpr double kLeastScale = 10;
inline constexpr double kMostScale = 1e8;

/// A dot is a pixel of a usual screen, and no painter draws anything smaller.
inline constexpr double kLeastDpi = 96;
inline constexpr double kMostDpi = 1200;

/// "1:4,000"
[[nodiscard]] QString scaleText(double scale);
