#pragma once

#include "lum_desktop_sdkx/ILayerViewer.h"

#include <QColor>
#include <QFont>
#include <QImage>

#include <string>
#include <vector>

/// All that one picture of the map is made of.
struct MapPaintJob
{
    PaintTarget target;
    std::vector<ILayerViewer*> layers;   ///< bottom to top
    std::vector<std::string> layerNames; ///< beside them, for the log: no worker asks a layer
    QColor background = Qt::white;
    QColor foreground = Qt::black; ///< the pen that a layer finds set
    QFont font;                    ///< see `fontForWorker`
    double pixelRatio = 1;         ///< device pixels to a screen pixel
};

/// Paints the layers over the background: an opaque picture of the target's size, in any thread.
///
/// A layer that throws is logged, with what it drew so far kept; the others are painted all the
/// same. Layers that follow after the target was cancelled are left out.
[[nodiscard]] QImage paintPicture(const MapPaintJob& job);

/// `font` with nothing shared with the GUI thread: two threads must not draw with copies of one
/// `QFont`, whose font engine they would fight over.
[[nodiscard]] QFont fontForWorker(const QFont& font);
