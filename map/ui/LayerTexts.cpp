#include "map/ui/LayerTexts.h"

#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/ShownUnit.h"
#include "map/MarkTable.h"

#include <QCoreApplication>

namespace {

QString withPosition(const QString& what, const GridPlace& grid)
{
    const lum::LengthUnit unit = lum::shownUnit().grid;
    const std::string position =
        "\nN=" + basalt::formatFixed(grid.north, 3) + "    E=" + basalt::formatFixed(grid.east, 3);
    return what + QString::fromStdString(
                      lum::isMetre(unit) ? position : position + "    " + lum::symbolOf(unit));
}

} // namespace

namespace LayerTexts {

QString baseLabel()
{
    return QCoreApplication::translate("DataProcessLayerImp", "Base");
}

QString baseName(std::size_t index)
{
    return baseLabel() + QLatin1Char('-') + QString::number(index + 1);
}

QString basePick()
{
    return QCoreApplication::translate("DataProcessLayerImp", "base");
}

QString seenInSurveyView()
{
    return QCoreApplication::translate("DataProcessLayerImp",
                                       "The map shows results in the survey view (F7).");
}

QString drawDesign()
{
    return QCoreApplication::translate("DataProcessLayerImp", "Draw Design Data");
}

QString drawSurvey()
{
    return QCoreApplication::translate("DataProcessLayerImp", "Draw Survey Data");
}

QString designTip(int type, const QString& line, const QString& point, const GridPlace& grid)
{
    const char* const kind =
        type == 1   ? QT_TRANSLATE_NOOP("DataProcessLayerImp", "Line %1, point %2 (receiver)")
        : type == 0 ? QT_TRANSLATE_NOOP("DataProcessLayerImp", "Line %1, point %2 (source)")
                    : QT_TRANSLATE_NOOP("DataProcessLayerImp", "Line %1, point %2 (design)");
    return withPosition(QCoreApplication::translate("DataProcessLayerImp", kind).arg(line, point),
                        grid);
}

QString surveyTip(const QString& line, const QString& point, const GridPlace& grid)
{
    const QString what =
        QCoreApplication::translate("DataProcessLayerImp", "Line %1, point %2 (survey result)");
    return withPosition(what.arg(line, point), grid);
}

QString baseTip(std::size_t index, const GridPlace& grid)
{
    const QString what = QCoreApplication::translate("DataProcessLayerImp", "%1-%2 (base station)");
    return withPosition(what.arg(baseLabel()).arg(index + 1), grid);
}

} // namespace LayerTexts
