#include "lum_desktop_sdkx/map/MapPaintJob.h"

#include "basalt_utilities/ILogger.h"
#include "lum_sdk/raster/Halo.h"

#include <QPainter>

#include <algorithm>

namespace {

void paintLayer(ILayerViewer& layer, const MapPaintJob& job, QImage& picture)
{
    QPainter painter(&picture); // a new one, with nothing that another layer has set
    painter.setFont(job.font);
    painter.setPen(job.foreground);
    layer.Paint(job.target, job.target.transform.visibleExtent(), painter);
}

void logFault(const MapPaintJob& job, std::size_t layer, const std::string& reason)
{
    const std::string name = layer < job.layerNames.size() ? job.layerNames[layer] : "";
    basalt::logError("Layer \"" + name + "\" could not be painted: " + reason);
}

/// Paints the layers from `first` to before `end`.
void paintLayers(const MapPaintJob& job, std::size_t first, std::size_t end, QImage& picture)
{
    for (std::size_t i = first; i < end; ++i) {
        if (job.target.isCancelled())
            break;
        try {
            paintLayer(*job.layers[i], job, picture);
        } catch (const std::exception& fault) {
            logFault(job, i, fault.what());
        } catch (...) {
            logFault(job, i, "unknown fault");
        }
    }
}

/// Paints the layers from `first` on, with a halo under them.
void paintWithHalo(const MapPaintJob& job, std::size_t first, QImage& picture)
{
    QImage drawing(picture.size(), QImage::Format_ARGB32_Premultiplied);
    if (drawing.isNull()) {
        paintLayers(job, first, job.layers.size(), picture);
        return;
    }
    drawing.setDevicePixelRatio(job.target.pixelRatio);
    drawing.fill(Qt::transparent);
    paintLayers(job, first, job.layers.size(), drawing);
    if (!job.target.isCancelled())
        lum::drawWithHalo(picture, drawing, job.background);
}

} // namespace

QImage paintPicture(const MapPaintJob& job)
{
    const QSize size = job.target.transform.size() * job.target.pixelRatio;
    QImage picture(size.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    if (picture.isNull()) {
        basalt::logError("Not enough memory for a picture of the map");
        return picture;
    }
    picture.setDevicePixelRatio(job.target.pixelRatio);
    picture.fill(job.background);
    const std::size_t plain = std::min(job.layers.size(), job.firstOverPicture);
    paintLayers(job, 0, plain, picture);
    if (plain < job.layers.size())
        paintWithHalo(job, plain, picture);
    return picture;
}

QFont fontForWorker(const QFont& font)
{
    QFont own(font.family(), font.pointSize(), font.weight(), font.italic());
    if (font.pixelSize() > 0)
        own.setPixelSize(font.pixelSize());
    return own;
}
