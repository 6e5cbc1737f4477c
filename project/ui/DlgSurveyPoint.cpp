#include "project/ui/DlgSurveyPoint.h"

DlgSurveyPoint::DlgSurveyPoint(QWidget* parent, const PointName& point)
    : Dialog(parent), m_point(point)
{
}
