#include "app/cli/RenderProject.h"

#include "app/cli/CliCommands.h"
#include "app/cli/CliProject.h"
#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/files/WholeFile.h"
#include "map/DesignMarks.h"
#include "map/DesignPicture.h"
#include "map/DesignSpacing.h"
#include "map/MarkExtent.h"
#include "map/PictureFrame.h"
#include "map/SurveyMarks.h"
#include "map/SurveyPicture.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QRegularExpression>

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

void paintDesignOf(DataProcessDataManager& manager, QImage& image)
{
    const DesignMarks marks(manager.designPoints(), toMap);
    DesignPictureOptions options;
    options.spacing = smallestSpacing(manager.designParameters()).value_or(options.spacing);
    QPainter painter(&image);
    paintDesign(marks, frameFor(image.size(), markExtent(marks.table().gridBounds(), toMap)),
                options, painter);
}

void paintSurveyOf(DataProcessDataManager& manager, QImage& image)
{
    const SurveyMarks marks(manager.surveyPoints(), toMap);
    QPainter painter(&image);
    paintSurvey(marks, frameFor(image.size(), markExtent(marks.gridBounds(), toMap)),
                QCoreApplication::translate("DataProcessLayerImp", "Base"), painter);
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
    CliProject project;
    if (Outcome opening = project.open(arguments.places[0], ProjectAccess::Look); !opening.isDone())
        return opening;
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    if (view == QLatin1String("design"))
        paintDesignOf(project.manager(), image);
    else
        paintSurveyOf(project.manager(), image);
    return writePicture(image, arguments.places[2]);
}
