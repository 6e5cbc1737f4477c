#include "map/sheet/MapSheet.h"

#include "lum_sdk/coords/CoordProjections.h"
#include "lum_sdk/coords/EpsgSystem.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/Text.h"
#include "map/sheet/MapGround.h"
#include "map/sheet/SheetBands.h"
#include "map/sheet/SheetLayout.h"
#include "map/sheet/SheetPainter.h"
#include "model/CoordinateRecord.h"

#include <QCoreApplication>
#include <QImage>
#include <QPainter>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MapSheet)
};

QString plainNameOf(const IDictionary& system)
{
    const lum::ProjectionKind* const projection = lum::projectionKind(system);
    if (projection == nullptr)
        return Texts::tr("none");
    const QString id = lum::toQString(system.text(CoordinateRecord::kId));
    const QString code = id.section(QLatin1String("EPSG:"), 1);
    const QString name =
        code.isEmpty() ? QString() : QString::fromStdString(epsgName(code.toStdString()));
    if (!name.isEmpty())
        return id + QLatin1Char(' ') + name;
    return QCoreApplication::translate("CoordProjections", projection->name) +
           QStringLiteral(", ") + lum::toQString(system.text("ellipsoid_name"));
}

} // namespace

QRectF extentOf(const MapDrawing& drawing, const MapGround& ground)
{
    return drawing.extent.isNull() ? ground.extent() : drawing.extent;
}

QString systemNameOf(const IDictionary& system)
{
    const lum::LengthUnit unit = lum::lengthUnitOf(system);
    const QString name = plainNameOf(system);
    const QString told = QStringLiteral("(%1)").arg(lum::toQString(lum::symbolOf(unit)));
    return lum::isMetre(unit) || name.contains(told) ? name : name + QLatin1Char(' ') + told;
}

void nameSheet(MapSheet& sheet, const QString& project, const IDictionary& system)
{
    SheetSetup& setup = sheet.setup;
    setup.project = project;
    setup.system = basalt::Dictionary(system);
    setup.systemName = systemNameOf(system);
    setup.unit = lum::shownUnit();
    setup.date = QDate::currentDate();
    setup.area = extentOf(sheet.drawing, *sheet.ground);
    if (setup.title.isEmpty())
        setup.title =
            (sheet.drawing.isSurvey ? Texts::tr("%1: survey results") : Texts::tr("%1: design"))
                .arg(project);
}

bool paintSheet(QPainter& painter, const MapSheet& sheet, const SheetLayout& layout,
                SheetWatch& watch)
{
    // A ground is a photograph; lines alone stay sharp.
    painter.setRenderHint(QPainter::LosslessImageRendering, sheet.ground->isEmpty());
    const QPoint corner = layout.map.topLeft();
    const bool isPainted = paintBands(sheet, layout, watch, [&](const QImage& band, int row) {
        painter.drawImage(QRect(corner + QPoint(0, row), band.size()), band);
        return true;
    });
    if (!isPainted)
        return false;
    painter.save();
    painter.scale(layout.ratio, layout.ratio);
    drawSheetFrame(painter, sheet, layout);
    painter.restore();
    return true;
}
