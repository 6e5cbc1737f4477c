#pragma once

#include "lum_desktop_sdkx/ILayerViewer.h"

#include <QColor>
#include <QFont>
#include <QImage>

#include <limits>
#include <string>
#include <vector>

/// Everything that is needed to paint one picture of the map.
struct MapPaintJob
{
    PaintTarget target;
    std::vector<ILayerViewer*> layers;   ///< from bottom to top
    std::vector<std::string> layerNames; ///< for the log, in the same order; a worker must not ask
    /// The layers from this one on lie over a picture of the ground, and get a halo in the colour
    /// of the background.
    std::size_t firstOverPicture = std::numeric_limits<std::size_t>::max();
    QColor background = Qt::white;
    QColor foreground = Qt::black; ///< the pen of the painter that a layer gets
    QFont font;                    ///< see `fontForWorker`
};

/// Paints the layers over the background. Any thread may call it. The picture is opaque and has the
/// size of the target.
///
/// When a layer throws, the log says so, its drawing so far stays, and the other layers are
/// painted. Once the target is cancelled, no further layer is painted.
[[nodiscard]] QImage paintPicture(const MapPaintJob& job);

/// A font equal to `font` that shares nothing with it. Copies of one `QFont` share a font engine,
/// which two threads must not use at the same time.
[[nodiscard]] QFont fontForWorker(const QFont& font);
