#include "quality/MeasuredPoint.h"

#include "model/PointNumber.h"
#include "quality/ResurveyCode.h"

const DesignPoint* measuredPoint(const DesignPoints& design, std::string_view line,
                                 std::string_view number, std::string_view resurveyCode)
{
    const DesignPoints::Line* const points = design.findLine(line);
    if (points == nullptr)
        return nullptr;
    if (const DesignPoint* const same = points->find(number))
        return same;
    if (isCheckPoint(number))
        number = writtenPointNumber(number).substr(1);
    if (const DesignPoint* const repeated = points->find(number))
        return repeated;
    return points->find(withoutCode(number, resurveyCode));
}
