#pragma once

#include "model/PointLines.h"

#include <QStringList>

#include <vector>

class IDBAdapter;
class IDictionary;
class ProgressReporter;

/// Rows for the three tables of a project's database, which is open and in a transaction. Each
/// operation answers whether it succeeded; the adapter says why one did not.
namespace TableRows {

/// What is reported after each line.
struct LineProgress
{
    ProgressReporter& reporter;
    QString caption;
};

/// The lines of these numbers, in the order of the list; null for one that does not exist.
template <class Points>
std::vector<const typename Points::Line*> linesOf(const Points& points, const QStringList& numbers)
{
    std::vector<const typename Points::Line*> lines;
    for (const QString& number : numbers)
        lines.push_back(points.findLine(number.toStdString()));
    return lines;
}

/// All lines, in their order.
template <class Points>
std::vector<const typename Points::Line*> linesOf(const Points& points)
{
    std::vector<const typename Points::Line*> lines;
    for (const auto& [number, line] : points)
        lines.push_back(&line);
    return lines;
}

/// \param lines null for a line that does not exist; it counts as done and is not reported
bool addDesign(IDBAdapter& database, const std::vector<const DesignPoints::Line*>& lines,
               bool onlyUnsurveyed, const LineProgress& progress);
bool addSurvey(IDBAdapter& database, const std::vector<const SurveyPoints::Line*>& lines,
               const LineProgress& progress);

/// Adds the column of the unit when the system has one and the table has not.
bool addCoordinateSystem(IDBAdapter& database, const IDictionary& parameters);

} // namespace TableRows
