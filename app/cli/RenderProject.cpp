#include "app/cli/RenderProject.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "app/cli/RenderGround.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/WholeFile.h"
#include "lum_sdk/raster/Halo.h"
#include "lum_sdk/raster/Legend.h"
#include "map/DesignMarks.h"
#include "map/DesignPicture.h"
#include "map/DesignSpacing.h"
#include "map/MarkExtent.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/SurveyPicture.h"
#include "quality/colors/ChosenColors.h"
#include "quality/colors/Colorings.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QRegularExpression>

#include <cstdio>

namespace {

constexpr QSize kUsualSize{1600, 1000};
constexpr int kLargest = 20000;

QPointF toMap(double north, double east)
{
    const lum::PlaneAxes axes = lum::planeAxes(get_project_coord_transform().parameters());
    return {axes.eastSign() * east, axes.northSign() * north};
}

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
template <class Paint>
void paintMap(RenderGround& ground, QImage& image, const QRectF& extent, const Paint& paintData)
{
    const PictureFrame frame = frameFor(image.size(), extent);
    if (ground.isEmpty()) {
        QPainter painter(&image);
        paintData(frame, painter);
        return;
    }
    ground.paint(frame.transform, image);
    QImage drawing(image.size(), image.format());
    drawing.fill(Qt::transparent);
    {
        QPainter painter(&drawing);
        paintData(frame, painter);
    }
    lum::drawWithHalo(image, drawing, Qt::white);
    ground.nameSource(image);
}

/// The extent of the data; without data that of the overlays.
template <class Marks>
QRectF extentOf(const Marks& marks, const Bounds& bounds, const RenderGround& ground)
{
    const QRectF overlays = ground.extent();
    return marks.table().size() == 0 && !overlays.isNull() ? overlays : markExtent(bounds, toMap);
}

void paintDesignOf(DataProcessDataManager& manager, RenderGround& ground, QImage& image)
{
    const DesignMarks marks(manager.designPoints(), toMap);
    DesignPictureOptions options;
    options.spacing = smallestSpacing(manager.designParameters()).value_or(options.spacing);
    paintMap(ground, image, extentOf(marks, marks.table().gridBounds(), ground),
             [&](const PictureFrame& frame, QPainter& painter) {
                 paintDesign(marks, frame, options, painter);
             });
}

/// \param coloring null for no colours
void paintSurveyOf(DataProcessDataManager& manager, RenderGround& ground, const Coloring* coloring,
                   QImage& image)
{
    const ResultColors colors = colorsOf(coloring, manager.surveyPoints(), manager.qualityLimits());
    const SurveyMarks marks(manager.surveyPoints(), toMap, {colors.colors(), colors.classOf()});
    const QString base = QCoreApplication::translate("DataProcessLayerImp", "Base");
    const SurveyPictureOptions options = usualSurveyOptions(!colors.isNone());
    paintMap(ground, image, extentOf(marks, marks.gridBounds(), ground),
             [&](const PictureFrame& frame, QPainter& painter) {
                 paintSurvey(marks, frame, base, painter, options);
             });
    QPainter painter(&image);
    lum::drawLegend(painter, image.size(), colors.legend(marks.classCounts()));
}

/// Finds what "--color-by" names; null without it.
Outcome readColoring(const CliArguments& arguments, const Coloring*& coloring)
{
    const QString name = arguments.option(QStringLiteral("--color-by"));
    if (name.isEmpty())
        return Outcome::done();
    if (arguments.places[1] != QLatin1String("survey"))
        return Outcome::refused(QStringLiteral("--color-by goes with survey alone"));
    coloring = findColoring(name.toStdString());
    if (coloring != nullptr)
        return Outcome::done();
    QStringList names;
    for (const Coloring& each : colorings())
        names << QLatin1String(each.name);
    return Outcome::refused(QStringLiteral("results cannot be coloured by \"%1\", but by %2")
                                .arg(name, names.join(QStringLiteral(", "))));
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
    const QString& view = arguments.places[1];
    const QSize size = readSize(arguments.option(QStringLiteral("--size")));
    if (view != QLatin1String("design") && view != QLatin1String("survey"))
        return Outcome::refused(QStringLiteral("\"%1\" is neither design nor survey").arg(view));
    if (size.isEmpty())
        return Outcome::refused(QStringLiteral("a size reads 1600x1000, up to 20000 a side"));
    const Coloring* coloring = nullptr;
    if (Outcome reading = readColoring(arguments, coloring); !reading.isDone())
        return reading;
    RenderGround ground;
    if (Outcome choosing = ground.choose(arguments); !choosing.isDone())
        return choosing;
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    if (Outcome opening = ground.open(arguments); !opening.isDone())
        return opening;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    if (view == QLatin1String("design"))
        paintDesignOf(project.manager(), ground, image);
    else
        paintSurveyOf(project.manager(), ground, coloring, image);
    for (const QString& notice : ground.notices())
        std::fprintf(stderr, "%s\n", qUtf8Printable(notice));
    Outcome writing = writePicture(image, arguments.places[2]);
    if (!writing.isDone() || ground.faults().isEmpty())
        return writing;
    return Outcome::failed(QStringLiteral("\"%1\" is written, but not complete: %2")
                               .arg(arguments.places[2], ground.faults().join(QLatin1Char(' '))));
}
