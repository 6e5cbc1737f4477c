#include "lum_desktop_sdkx/map/MapPaintJob.h"

#include "basalt_utilities/ILogger.h"

#include <QPainter>

namespace {

void paintLayer(ILayerViewer& layer, const MapPaintJob& job, QImage& picture)
{
    QPainter painter(&picture); // one each, so that no layer inherits what another one set
    painter.setFont(job.font);
    painter.setPen(job.foreground);
    layer.Paint(job.target, job.target.transform.visibleExtent(), painter);
}

void logFault(const ILayerViewer& layer, const std::string& reason)
{
    basalt::logError("Layer \"" + layer.GetName() + "\" could not be painted: " + reason);
}

} // namespace

QImage paintPicture(const MapPaintJob& job)
{
    const QSize size = job.target.transform.size() * job.pixelRatio;
    QImage picture(size.expandedTo(QSize(1, 1)), QImage::Format_RGB32);
    if (picture.isNull()) {
        basalt::logError("Not enough memory for a picture of the map");
        return picture;
    }
    picture.setDevicePixelRatio(job.pixelRatio);
    picture.fill(job.background);
    for (ILayerViewer* layer : job.layers) {
        if (job.target.isCancelled())
            break;
        try {
            paintLayer(*layer, job, picture);
        } catch (const std::exception& fault) {
            logFault(*layer, fault.what());
        } catch (...) {
            logFault(*layer, "unknown fault");
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
