#include "lum_desktop_sdkx/map/MapPaintJob.h"

#include "basalt_utilities/ILogger.h"

#include <QPainter>

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
    for (std::size_t i = 0; i < job.layers.size(); ++i) {
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
    return picture;
}

QFont fontForWorker(const QFont& font)
{
    QFont own(font.family(), font.pointSize(), font.weight(), font.italic());
    if (font.pixelSize() > 0)
        own.setPixelSize(font.pixelSize());
    return own;
}
