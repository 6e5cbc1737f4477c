#include "app/cli/RenderProject.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "app/cli/MapChoice.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/WholeFile.h"
#include "lum_sdk/raster/Attribution.h"
#include "lum_sdk/raster/Halo.h"
#include "map/MarkExtent.h"
#include "map/PictureFrame.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/MapSheet.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QRegularExpression>

#include <cstdio>

namespace {

constexpr QSize kUsualSize{1600, 1000};
constexpr int kLargest = 20000;

/// \returns an empty size for a text that is not a size
QSize readSize(const QString& text)
{
    if (text.isEmpty())
        return kUsualSize;
    static const QRegularExpression pattern(QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
    const QRegularExpressionMatch match = pattern.match(text);
    const QSize size(match.captured(1).toInt(), match.captured(2).toInt());
    return size.isEmpty() || size.width() > kLargest || size.height() > kLargest ? QSize() : size;
}

PictureFrame frameFor(const QSize& size, const QRectF& extent)
{
    PictureFrame frame;
    frame.transform.setSize(size);
    frame.transform.fit(extent);
    frame.drawingArea = QRectF(QPointF(0, 0), size);
    return frame;
}

/// Paints the ground and the data over it, with a halo where there is a ground.
void paintMap(MapGround& ground, const MapDrawing& drawing, const PictureFrame& frame,
              QImage& image)
{
    if (ground.isEmpty()) {
        QPainter painter(&image);
        drawing.paint(frame, painter);
        return;
    }
    ground.paint(frame.transform, image);
    QImage data(image.size(), image.format());
    data.fill(Qt::transparent);
    {
        QPainter painter(&data);
        drawing.paint(frame, painter);
    }
    lum::drawWithHalo(image, data, Qt::white);
    QPainter painter(&image);
    lum::drawAttribution(painter, image.size(), ground.attribution());
}

/// The extent of the data; without data that of the overlays, or the place of the origin.
QRectF shownExtent(const MapDrawing& drawing, const MapGround& ground)
{
    const QRectF extent = extentOf(drawing, ground);
    const ToMap toMap = toMapOf(get_project_coord_transform().parameters());
    return extent.isNull() ? markExtent(Bounds(), toMap) : extent;
}

/// The ending of the file's name chooses the format.
Outcome writePicture(const QImage& image, const QString& file)
{
    QBuffer encoded;
    QImageWriter writer(&encoded, QFileInfo(file).suffix().toLatin1());
    const QString fault =
        writer.write(image) ? lum::writeWholeFile(file, encoded.data()) : writer.errorString();
    if (fault.isEmpty())
        return Outcome::done();
    return Outcome::failed(QStringLiteral("Cannot write \"%1\": %2").arg(file, fault));
}

} // namespace

Outcome renderProject(const CliArguments& arguments)
{
    MapChoice choice;
    if (Outcome reading = choice.read(arguments); !reading.isDone())
        return reading;
    const QSize size = readSize(arguments.option(QStringLiteral("--size")));
    if (size.isEmpty())
        return Outcome::refused(QStringLiteral("a size reads 1600x1000, up to 20000 a side"));
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    MapGround ground(get_project_coord_transform().parameters());
    if (Outcome opening = choice.open(ground); !opening.isDone())
        return opening;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    const MapDrawing drawing = choice.drawing(project.manager(), SurveyPictureOptions::Names::All);
    const PictureFrame frame = frameFor(size, shownExtent(drawing, ground));
    paintMap(ground, drawing, frame, image);
    if (drawing.isSurvey) { // as on the screen, where a design has none
        QPainter painter(&image);
        lum::drawLegend(painter, image.size(), drawing.legend);
    }
    for (const QString& notice : ground.overlaysBeside(frame.transform.visibleExtent()))
        std::fprintf(stderr, "%s\n", qUtf8Printable(notice));
    Outcome writing = writePicture(image, arguments.places[2]);
    const QStringList faults = ground.takeFaults();
    if (!writing.isDone() || faults.isEmpty())
        return writing;
    return Outcome::failed(QStringLiteral("\"%1\" is written, but not complete: %2")
                               .arg(arguments.places[2], faults.join(QLatin1Char(' '))));
}
