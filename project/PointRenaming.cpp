#include "project/PointRenaming.h"

#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "project/PointCorrection.h"
#include "quality/MeasuredPoint.h"
#include "quality/problems/LineOrder.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

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

/// A direction on the plane: a unit vector.
struct Direction
{
    double east;
    double north;
};

/// The directions of design lines, whose points it puts in order once.
class LineDirections
{
public:
    explicit LineDirections(const DesignPoints& design) : m_design(design) {}

    /// From the point before it by number, of the same type, to the one behind; nothing when the
    /// line has no other one.
    [[nodiscard]] std::optional<Direction> at(const DesignPoint& point)
    {
        const std::vector<Entry>& order = orderOf(point);
        const auto found = std::ranges::find(order, &point, &Entry::point);
        if (found == order.end())
            return std::nullopt; // its number has no digits
        const auto before = found == order.begin() ? found : std::prev(found);
        const auto behind = std::next(found) == order.end() ? found : std::next(found);
        const double east = behind->point->east - before->point->east;
        const double north = behind->point->north - before->point->north;
        const double length = std::hypot(east, north);
        if (!(length > 0))
            return std::nullopt;
        return Direction{east / length, north / length};
    }

private:
    struct Entry
    {
        NumberParts number;
        const DesignPoint* point;
    };

    const std::vector<Entry>& orderOf(const DesignPoint& point)
    {
        const auto [found, isNew] = m_orders.try_emplace({point.lineNumber, point.type});
        std::vector<Entry>& order = found->second;
        if (!isNew)
            return order;
        for (const DesignPoint& other : *m_design.findLine(point.lineNumber)) {
            const NumberParts number = numberParts(other.pointNumber);
            if (other.type == point.type && !std::isnan(number.number))
                order.push_back({number, &other});
        }
        std::ranges::stable_sort(order, {}, &Entry::number);
        return order;
    }

    const DesignPoints& m_design;
    std::map<std::pair<std::string, int>, std::vector<Entry>> m_orders; ///< by line and type
};

/// Deviations to the right of the line and forward along it. A result without any keeps none.
void setDeviations(SurveyPoint& result, const DesignPoint& point, LineDirections& directions)
{
    if (result.transversalDeviation == 0 && result.longitudinalDeviation == 0)
        return;
    const auto along = directions.at(point);
    if (!along)
        return;
    const double east = result.east - point.east;
    const double north = result.north - point.north;
    result.transversalDeviation = east * along->north - north * along->east;
    result.longitudinalDeviation = east * along->east + north * along->north;
}

void followDesign(SurveyPoint& result, const DesignPoint& point, LineDirections& directions)
{
    result.designNorth = point.north;
    result.designEast = point.east;
    result.designElevation = point.elevation;
    result.pointMark = point.type;
    setDeviations(result, point, directions);
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
    LineDirections directions(design);
    for (const auto& [from, to] : renamings) {
        SurveyPoint result = *survey.find(from.line, from.point);
        result.lineNumber = to.line;
        result.pointNumber = to.point;
        if (const DesignPoint* const point = measuredPoint(design, to.line, to.point, resurveyCode))
            followDesign(result, *point, directions);
        const SurveyPoint& filed = filer.file(std::move(result));
        allNames.push_back(from);
        allNames.push_back({filed.lineNumber, filed.pointNumber});
    }
    renamed.names = PointNames(allNames);
    return Outcome::done();
}
