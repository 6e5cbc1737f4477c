#include "project/PointRenaming.h"

#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "project/PointCorrection.h"
#include "quality/MeasuredPoint.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

namespace {

struct PointRenaming
{
    Q_DECLARE_TR_FUNCTIONS(PointRenaming)
};

struct ByName
{
    bool operator()(const PointName& a, const PointName& b) const
    {
        return std::tie(a.line, a.point) < std::tie(b.line, b.point);
    }
};
using NameSet = std::set<PointName, ByName>;

QString shown(const PointName& name)
{
    return lum::toQString(name.line) + QStringLiteral(" / ") +
           lum::toQString(writtenPointNumber(name.point));
}

/// The direction of a design line at a point, from the one before it to the one behind: a unit
/// vector to the east and north; nothing when the line has no other point.
std::optional<std::pair<double, double>> directionAt(const DesignPoints::Line& line,
                                                     const DesignPoint& point)
{
    const DesignPoint* before = nullptr;
    const DesignPoint* behind = nullptr;
    for (const DesignPoint& other : line) {
        if (other.type != point.type || &other == &point)
            continue;
        if (other.pointNumber < point.pointNumber) {
            before = &other;
        } else {
            behind = &other;
            break;
        }
    }
    const DesignPoint& from = before != nullptr ? *before : point;
    const DesignPoint& to = behind != nullptr ? *behind : point;
    const double length = std::hypot(to.east - from.east, to.north - from.north);
    if (!(length > 0))
        return std::nullopt;
    return std::pair((to.east - from.east) / length, (to.north - from.north) / length);
}

/// Deviations to the right of the line and forward along it. A result without any keeps none.
void setDeviations(SurveyPoint& result, const DesignPoints::Line& line, const DesignPoint& point)
{
    if (result.transversalDeviation == 0 && result.longitudinalDeviation == 0)
        return;
    const auto direction = directionAt(line, point);
    if (!direction)
        return;
    const auto [alongEast, alongNorth] = *direction;
    const double east = result.east - point.east;
    const double north = result.north - point.north;
    result.transversalDeviation = east * alongNorth - north * alongEast;
    result.longitudinalDeviation = east * alongEast + north * alongNorth;
}

void followDesign(SurveyPoint& result, const DesignPoints& design, const DesignPoint& point)
{
    result.designNorth = point.north;
    result.designEast = point.east;
    result.designElevation = point.elevation;
    result.pointMark = point.type;
    setDeviations(result, *design.findLine(point.lineNumber), point);
}

Outcome missing(const PointName& name)
{
    return Outcome::refused(
        PointRenaming::tr("There is no result %1 any more: nothing was renamed.").arg(shown(name)));
}

Outcome taken(const PointName& name)
{
    return Outcome::refused(PointRenaming::tr("Another result has the name %1: nothing was "
                                              "renamed. Give that one its right name first, or "
                                              "both at once.")
                                .arg(shown(name)));
}

/// Why the new names cannot be given; done when they can.
Outcome examine(const SurveyPoints& survey, const std::vector<Renaming>& renamings)
{
    NameSet leaving;
    for (const Renaming& renaming : renamings)
        leaving.insert(renaming.from);
    NameSet coming;
    for (const auto& [from, to] : renamings) {
        SurveyCorrection name;
        name.lineNumber = to.line;
        name.pointNumber = to.point;
        if (survey.find(from.line, from.point) == nullptr)
            return missing(from);
        if (const auto fault = faultOf(name))
            return Outcome::refused(fault->text);
        if (isCheckPoint(to.point))
            continue;
        const bool isFree = survey.find(to.line, to.point) == nullptr || leaving.contains(to);
        if (!isFree || !coming.insert(to).second)
            return taken(to);
    }
    return leaving.size() == renamings.size() ? Outcome::done() : taken(renamings.front().from);
}

} // namespace

Outcome renameResults(const DesignPoints& design, const SurveyPoints& survey,
                      std::string_view resurveyCode, const std::vector<Renaming>& renamings,
                      RenamedPoints& renamed)
{
    if (Outcome examination = examine(survey, renamings); !examination.isDone())
        return examination;
    std::vector<PointName> allNames;
    SurveyPointFiler filer(renamed.results, &survey);
    for (const auto& [from, to] : renamings) {
        SurveyPoint result = *survey.find(from.line, from.point);
        result.lineNumber = to.line;
        result.pointNumber = to.point;
        if (const DesignPoint* const point = measuredPoint(design, to.line, to.point, resurveyCode))
            followDesign(result, design, *point);
        const SurveyPoint& filed = filer.file(std::move(result));
        allNames.push_back(from);
        allNames.push_back({filed.lineNumber, filed.pointNumber});
    }
    renamed.names = PointNames(allNames);
    return Outcome::done();
}
