#include "quality/problems/Problem.h"

#include <QCoreApplication>

QString ProblemKind::captionText() const
{
    return QCoreApplication::translate("ProblemKinds", caption);
}
