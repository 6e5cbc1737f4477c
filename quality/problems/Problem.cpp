#include "quality/problems/Problem.h"

#include "lum_sdk/GroupedNumber.h"

#include <QCoreApplication>

QString ProblemKind::captionText() const
{
    return QCoreApplication::translate("ProblemKinds", caption);
}

QString withFollowing(const QString& sentence, const Problem& problem)
{
    if (problem.follows == 0)
        return sentence;
    return sentence + QLatin1Char(' ') +
           QCoreApplication::translate("ProblemKinds",
                                       "Problems of single points that follow from it: %1.")
               .arg(lum::groupedNumber(problem.follows));
}
