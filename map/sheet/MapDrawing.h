#pragma once

#include "lum_sdk/raster/Legend.h"
#include "map/DesignPicture.h"
#include "map/SurveyPicture.h"
#include "map/ToMap.h"
#include "model/PointLines.h"

#include <QRectF>

#include <functional>

class IDictionary;
class QPainter;
class ResultColors;
struct PictureFrame;

/// The project's data, ready to be painted into any picture on any thread, however often. It holds
/// what it needs, so that the data may change meanwhile.
struct MapDrawing
{
    std::function<void(const PictureFrame&, QPainter&)> paint;
    QRectF extent;      ///< map coordinates; null without a point
    lum::Legend legend; ///< without entries when the colours need no word
    bool isSurvey = false;
};

/// From the grid of a system to the map, whose y always points to the north.
[[nodiscard]] ToMap toMapOf(const IDictionary& system);

/// The design. A smallest spacing that `parameters` tell goes before that of `options`.
[[nodiscard]] MapDrawing drawingOf(const DesignPoints& points, const IDictionary& parameters,
                                   const ToMap& toMap, DesignPictureOptions options = {});
/// The survey in colours, or in none, with fine base ties.
[[nodiscard]] MapDrawing drawingOf(const SurveyPoints& points, const ResultColors& colors,
                                   const ToMap& toMap, SurveyPictureOptions options);
