#include "map/ui/OverlayTexts.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/raster/RasterImage.h"
#include "lum_sdk/raster/RasterPlace.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <cmath>

namespace {

QString names(const QStringList& paths)
{
    QStringList found;
    for (const QString& path : paths)
        found << QFileInfo(path).fileName();
    return found.join(QStringLiteral(", "));
}

QString withoutOverviews(const QStringList& paths)
{
    return OverlayTexts::tr("Large images without overviews, which take long to show as a whole: "
                            "%1.")
        .arg(names(paths));
}

QString sizeText(const QSize& size)
{
    return lum::groupedNumber(size.width()) + QStringLiteral(" x ") +
           lum::groupedNumber(size.height());
}

QString decimals(double number, int count)
{
    return QString::fromStdString(basalt::formatFixed(number, count));
}

/// The size of a pixel in the middle of the image, in the unit of the project.
QString resolutionText(const lum::RasterPlace& place, const IDictionary& system)
{
    const QSize size = place.info().size;
    const QPointF middle(size.width() / 2.0, size.height() / 2.0);
    std::array<QPointF, 3> points{middle, middle + QPointF(1, 0), middle + QPointF(0, 1)};
    place.toMap(points);
    const double width = std::hypot(points[1].x() - points[0].x(), points[1].y() - points[0].y());
    const double height = std::hypot(points[2].x() - points[0].x(), points[2].y() - points[0].y());
    if (!std::isfinite(width) || !std::isfinite(height) || width <= 0)
        return OverlayTexts::tr("unknown");
    return OverlayTexts::tr("%1 x %2 %3 a pixel")
        .arg(QString::number(width, 'g', 5), QString::number(height, 'g', 5),
             QString::fromStdString(lum::symbolOf(lum::lengthUnitOf(system))));
}

QString bandsText(const lum::RasterInfo& info)
{
    QStringList bands;
    for (const lum::RasterBand& band : info.bands) {
        QString text = band.meaning + QLatin1Char(' ') + band.type;
        if (band.noData)
            text += OverlayTexts::tr(" (no data: %1)").arg(*band.noData);
        bands << text;
    }
    return QStringLiteral("%1: %2").arg(bands.size()).arg(bands.join(QStringLiteral(", ")));
}

QString overviewsText(const lum::RasterInfo& info)
{
    QStringList sizes;
    for (std::size_t i = 1; i < info.levels.size(); ++i) {
        if (info.levels[i].isStored)
            sizes << sizeText(info.levels[i].size);
    }
    return sizes.isEmpty() ? OverlayTexts::tr("none") : sizes.join(QStringLiteral(", "));
}

QString extentText(const QRectF& extent)
{
    if (extent.isNull())
        return OverlayTexts::tr("outside the coordinate system of the project");
    return QStringLiteral("N %1 ... %2\nE %3 ... %4")
        .arg(decimals(extent.top(), 1), decimals(extent.bottom(), 1), decimals(extent.left(), 1),
             decimals(extent.right(), 1));
}

} // namespace

QString OverlayTexts::information()
{
    return tr("information");
}

QString OverlayTexts::error()
{
    return tr("Error");
}

QString OverlayTexts::chooserTitle()
{
    return tr("Choose Overlay Images");
}

QString OverlayTexts::chooserFilter()
{
    return tr("georeferenced images") +
           QStringLiteral("(*.tif *.tiff *.vrt *.jp2 *.img *.jpg *.jpeg *.png *.bmp *.mbtiles);;") +
           tr("all files") + QStringLiteral("(*)");
}

QString OverlayTexts::buildOverviewsEntry()
{
    return tr("&Build Overviews");
}

QString OverlayTexts::chooseFileEntry()
{
    return tr("&Find Its File...");
}

QString OverlayTexts::needsProject()
{
    return tr("An overlay image is shown with the survey of a project: open or create a project "
              "first.");
}

QString OverlayTexts::added(int count, bool isOutside)
{
    const QString text = tr("Overlay images added: %1.").arg(count);
    return isOutside ? text + QLatin1Char(' ') +
                           tr("Beside the survey: a double click in the window "
                              "\"Layers\" goes there.")
                     : text;
}

QString OverlayTexts::notAdded(int count)
{
    return tr("Images that cannot be shown: %1.").arg(count);
}

QString OverlayTexts::faults(const QStringList& sentences)
{
    if (sentences.size() == 1)
        return tr("Overlay image: %1").arg(sentences.front());
    return tr("Overlay images with a fault: %1. The window \"Layers\" marks them.")
        .arg(sentences.size());
}

QString OverlayTexts::offerOverviews(const QStringList& paths)
{
    return withoutOverviews(paths) + QLatin1Char('\n') +
           tr("Build the overviews now, in files beside the images? You can go on working "
              "meanwhile.");
}

QString OverlayTexts::overviewsImpossible(const QStringList& paths)
{
    return withoutOverviews(paths) + QLatin1Char('\n') +
           tr("They cannot be built, since the folder cannot be written.");
}

QString OverlayTexts::noOverviews()
{
    return tr("The overviews were not built.");
}

QString OverlayTexts::overviewsEnded(const QString& name, bool isBuilt)
{
    return isBuilt ? tr("The overviews of \"%1\" are built.").arg(name)
                   : tr("Cancelled: \"%1\" stays without overviews.").arg(name);
}

QString OverlayTexts::tip(const QString& path, const lum::RasterInfo& info)
{
    return QDir::toNativeSeparators(path) + QLatin1Char('\n') +
           tr("%1 pixels").arg(sizeText(info.size));
}

QVector<QPair<QString, QString>> OverlayTexts::properties(const lum::RasterImage& image,
                                                          const IDictionary& system)
{
    QVector<QPair<QString, QString>> rows{{tr("File"), QDir::toNativeSeparators(image.path())}};
    if (const QString fault = image.fault(); !fault.isEmpty())
        rows.append({tr("Fault"), fault});
    if (!image.isUsable())
        return rows;
    const lum::RasterInfo& info = image.info();
    const lum::RasterPlace place(info, system);
    rows.append({tr("Format"), info.format});
    rows.append({tr("Size"), tr("%1 pixels").arg(sizeText(info.size))});
    rows.append({tr("Resolution"), resolutionText(place, system)});
    rows.append({tr("Coordinate system"), info.systemName.isEmpty()
                                              ? tr("none; taken for that of the project")
                                              : info.systemName});
    rows.append({tr("Place in the project"), extentText(place.extent())});
    rows.append({tr("Bands"), bandsText(info)});
    rows.append({tr("Overviews"), overviewsText(info)});
    return rows;
}
