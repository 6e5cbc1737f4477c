#include "map/ui/LayerTexts.h"

#include <QCoreApplication>

namespace LayerTexts {

QString baseLabel()
{
    return QCoreApplication::translate("DataProcessLayerImp", "Base");
}

QString basePick()
{
    return QCoreApplication::translate("DataProcessLayerImp", "base");
}

QString drawDesign()
{
    return QCoreApplication::translate("DataProcessLayerImp", "Draw Design Data");
}

QString drawSurvey()
{
    return QCoreApplication::translate("DataProcessLayerImp", "Draw Survey Data");
}

} // namespace LayerTexts
