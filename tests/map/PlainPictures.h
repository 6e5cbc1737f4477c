#pragma once

#include "map/DesignPicture.h"
#include "model/PointLines.h"

class QPainter;
struct PictureFrame;

// The two pictures of the map drawn the plain way: one call after another, nothing left out,
// straight from the points. What the real painters draw has to look the same, and to be quicker.

void paintDesignPlainly(const DesignPoints& points, const PictureFrame& frame,
                        const DesignPictureOptions& options, QPainter& painter);
void paintSurveyPlainly(const SurveyPoints& points, const PictureFrame& frame, QPainter& painter);
