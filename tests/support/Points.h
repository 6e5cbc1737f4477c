#pragma once

#include "model/DesignPoint.h"
#include "model/SurveyPoint.h"

/// A design point at the origin.
/// \param type  1 for a receiver
inline DesignPoint designPoint(const std::string& line, const std::string& number, int type = 0,
                               int status = 0)
{
    return {line, number, 0, 0, 0, 0, type, status};
}

/// A result at the origin.
inline SurveyPoint surveyPoint(const std::string& line, const std::string& number,
                               const std::string& remarks = {})
{
    SurveyPoint point;
    point.lineNumber = line;
    point.pointNumber = number;
    point.remarks = remarks;
    return point;
}
