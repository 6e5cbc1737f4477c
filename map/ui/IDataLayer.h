#pragma once

#include "lum_desktop_sdkx/ILayerViewer.h"
#include "map/MarkTable.h"
#include "model/BaseStation.h"

#include <QPointF>
#include <QString>

#include <optional>

/// A point of a picture.
struct DrawnPoint
{
    QString name; ///< point number, or the label of a base station
    GridPlace grid;
};

/// A layer whose points can be picked by place and looked up by name. Its operations, in this
/// order, follow those of `ILayerViewer`. Positions are map coordinates. When nothing is found, the
/// answer is an empty text or false, and the outputs stay as they were.
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
    /// Whether a mark of the picture in view lies in this part of the map.
    [[nodiscard]] virtual bool hasMarkIn(const QRectF& map) const = 0;
    /// The point of the picture in view that a click there hits, with its exact position.
    [[nodiscard]] virtual std::optional<DrawnPoint> pointAt(const QPointF& map) const = 0;
};
