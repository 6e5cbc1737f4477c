#pragma once

#include "map/DesignPicture.h"
#include "model/PointLines.h"

class QPainter;
struct PictureFrame;

// The two pictures of the map, drawn by plain calls for each point, and nothing left out. The
// pictures of the real painters must look the same, and take less time.

void paintDesignPlainly(const DesignPoints& points, const PictureFrame& frame,
                        const DesignPictureOptions& options, QPainter& painter);
void paintSurveyPlainly(const SurveyPoints& points, const PictureFrame& frame, QPainter& painter);
