#pragma once

#include "lum_desktop_sdkx/ILayerViewer.h"
#include "model/BaseStation.h"

#include <QPointF>
#include <QString>

/// A layer whose points can be asked for; operations 7 to 12 of a layer. Positions are map
/// coordinates; names that are not found answer empty text or false and leave the outputs alone.
class IDataLayer : public ILayerViewer
{
public:
    [[nodiscard]] virtual QString PickSurveyPoint(double x, double y) const = 0;
    [[nodiscard]] virtual bool GetSurveyPoint(const QString& name, QString& line, QPointF& measured,
                                              QPointF& design) const = 0;
    [[nodiscard]] virtual QString PickDesignPoint(double x, double y) const = 0;
    [[nodiscard]] virtual bool GetDesignPoint(const QString& name, QString& line,
                                              QPointF& position) const = 0;
    [[nodiscard]] virtual bool GetBasePosition(int index, QPointF& position) const = 0;
    [[nodiscard]] virtual bool GetBaseRecord(int index, BaseStation& record) const = 0;
};
