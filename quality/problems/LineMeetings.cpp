#include "quality/problems/LineMeetings.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <utility>

namespace {

constexpr double kReach = 0.55; ///< spacings: from a point to the middle of its steps
constexpr double kHalf = 0.5;
constexpr double kBeside = 0.1;      ///< of a step: how far beside it a point still lies in it
constexpr std::size_t kLookedAt = 8; ///< points near a point

/// Where a line lies across the main direction of all lines.
struct Band
{
    std::size_t line;
    double fromM;
    double toM;
};

class MeetingSearch
{
public:
    MeetingSearch(std::span<const ListedLine> lines, std::span<const PointPlace> places,
                  const MeetingLimits& limits)
        : m_lines(lines), m_places(places), m_limits(limits)
    {
    }

    /// The lines that may meet others or themselves.
    [[nodiscard]] std::vector<std::size_t> candidates() const
    {
        std::vector<Band> bands;
        const PointPlace across = acrossAll();
        std::vector<bool> mayMeet(m_lines.size());
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            mayMeet[i] = !isStretched(m_lines[i]);
            bands.push_back(bandOf(i, across));
        }
        std::ranges::sort(bands, {}, &Band::fromM);
        double endM = -std::numeric_limits<double>::infinity(); // of the bands that hang together
        for (std::size_t i = 0; i < bands.size(); ++i) {
            if (bands[i].fromM <= endM)
                mayMeet[bands[i].line] = mayMeet[bands[i - 1].line] = true;
            endM = std::max(endM, bands[i].toM);
        }
        std::vector<std::size_t> lines;
        for (std::size_t i = 0; i < m_lines.size(); ++i) {
            if (mayMeet[i])
                lines.push_back(i);
        }
        return lines;
    }

    void search(std::size_t line, const PointIndex& index)
    {
        const ListedLine& own = m_lines[line];
        for (std::size_t point = own.first; point < own.first + own.count; ++point)
            lookForCoincident(point, index);
        if (own.spacingM == 0 || m_limits.interleaved == 0)
            return;
        for (std::size_t i = 0; i < own.order.size(); ++i) {
            lookForInterleaved(line, i, index);
            if (i > 0 && i + 1 < own.order.size())
                lookForExchanged(line, i, index);
        }
    }

    LineMeetings take()
    {
        for (const auto& [lines, between] : m_between) {
            const auto& [line, other] = lines;
            const std::uint32_t points = between.points;
            const auto back = m_between.find({other, line});
            const bool isMain = back == m_between.end() || points > back->second.points ||
                                (points == back->second.points && line < other);
            if (isMain && points >= m_limits.interleaved)
                m_found.interleaved.push_back(between);
        }
        return std::move(m_found);
    }

private:
    /// The unit vector across the main direction of the lines; opposite directions are the same.
    [[nodiscard]] PointPlace acrossAll() const
    {
        double cosine = 0; // of twice the angle
        double sine = 0;
        for (const ListedLine& line : m_lines) {
            if (line.order.empty())
                continue;
            const PointPlace& from = m_places[line.order.front()];
            const PointPlace& to = m_places[line.order.back()];
            const double angle = 2 * std::atan2(to.northM - from.northM, to.eastM - from.eastM);
            cosine += std::cos(angle) * distanceM(from, to);
            sine += std::sin(angle) * distanceM(from, to);
        }
        const double along = std::atan2(sine, cosine) / 2;
        return {-std::sin(along), std::cos(along)};
    }

    [[nodiscard]] Band bandOf(std::size_t number, const PointPlace& across) const
    {
        const ListedLine& line = m_lines[number];
        const double reachM = std::max(m_limits.coincidentM, kReach * line.spacingM);
        constexpr double kInfinity = std::numeric_limits<double>::infinity();
        Band band{number, kInfinity, -kInfinity};
        for (std::size_t i = line.first; i < line.first + line.count; ++i) {
            const double atM =
                m_places[i].eastM * across.eastM + m_places[i].northM * across.northM;
            band.fromM = std::min(band.fromM, atM - reachM);
            band.toM = std::max(band.toM, atM + reachM);
        }
        return band;
    }

    /// Whether each point of the line lies ahead of the one before, so that no two are in one
    /// place.
    [[nodiscard]] bool isStretched(const ListedLine& line) const
    {
        if (line.order.size() != line.count)
            return false;
        const PointPlace& from = m_places[line.order.front()];
        const PointPlace& to = m_places[line.order.back()];
        const double lengthM = distanceM(from, to);
        for (std::size_t i = 1; i < line.order.size(); ++i) {
            const PointPlace& a = m_places[line.order[i - 1]];
            const PointPlace& b = m_places[line.order[i]];
            const double ahead = (b.eastM - a.eastM) * (to.eastM - from.eastM) +
                                 (b.northM - a.northM) * (to.northM - from.northM);
            if (!(ahead > m_limits.coincidentM * lengthM))
                return false;
        }
        return true;
    }

    void lookForCoincident(std::size_t point, const PointIndex& index)
    {
        if (m_limits.coincidentM == 0)
            return;
        index.nearest(m_places[point], kLookedAt, m_limits.coincidentM, m_near);
        std::erase_if(m_near, [&](const auto& found) { return found.number == point; });
        const auto other = std::ranges::min_element(m_near, {}, &PointIndex::Found::number);
        const bool areAll = m_near.size() < kLookedAt - 1; // so that the first of them is known
        if (other != m_near.end() && (other->number < point || !areAll))
            m_found.coincident.push_back({point, other->number, other->distanceM});
    }

    void lookForInterleaved(std::size_t line, std::size_t at, const PointIndex& index)
    {
        const ListedLine& own = m_lines[line];
        const std::size_t point = own.order[at];
        index.nearest(m_places[point], kLookedAt, kReach * own.spacingM, m_near);
        for (const auto& [number, distance] : m_near) {
            const bool isOwn = number >= own.first && number < own.first + own.count;
            if (isOwn || distance <= m_limits.coincidentM)
                continue;
            const bool isAhead =
                at + 1 < own.order.size() && shareOfStep(number, point, own.order[at + 1]) <= kHalf;
            const bool isBehind = at > 0 && shareOfStep(number, point, own.order[at - 1]) < kHalf;
            if (isAhead || isBehind) // what lies in the middle counts once
                note(line, lineOf(number), point, number);
        }
    }
    /// A point that is not between its neighbours, where one of another line is in its stead.
    void lookForExchanged(std::size_t line, std::size_t at, const PointIndex& index)
    {
        constexpr double kAway = 0.3;     // spacings
        constexpr double kNeighbours = 3; // spacings that they are apart at most
        const ListedLine& own = m_lines[line];
        const PointPlace& before = m_places[own.order[at - 1]];
        const PointPlace& behind = m_places[own.order[at + 1]];
        const PointPlace middle{(before.eastM + behind.eastM) / 2,
                                (before.northM + behind.northM) / 2};
        const double apartM = distanceM(before, behind);
        const std::size_t point = own.order[at];
        if (apartM > kNeighbours * own.spacingM ||
            distanceM(m_places[point], middle) < kAway * own.spacingM)
            return;
        index.nearest(middle, kLookedAt, kBeside * apartM, m_near);
        for (const auto& [number, distance] : m_near) {
            if (number < own.first || number >= own.first + own.count)
                return note(line, lineOf(number), point, number);
        }
    }

    /// How much of a step leads up to a point that lies in it; otherwise more than a whole one.
    [[nodiscard]] double shareOfStep(std::size_t point, std::size_t from, std::size_t to) const
    {
        const PointPlace& a = m_places[from];
        const PointPlace step{m_places[to].eastM - a.eastM, m_places[to].northM - a.northM};
        const PointPlace way{m_places[point].eastM - a.eastM, m_places[point].northM - a.northM};
        const double square = step.eastM * step.eastM + step.northM * step.northM;
        const double along = (way.eastM * step.eastM + way.northM * step.northM) / square;
        const double beside = (way.eastM * step.northM - way.northM * step.eastM) / square;
        return along > kBeside && std::fabs(beside) < kBeside ? along : 2;
    }
    [[nodiscard]] std::size_t lineOf(std::size_t point) const
    {
        const auto behind = std::ranges::upper_bound(m_lines, point, {}, &ListedLine::first);
        return static_cast<std::size_t>(behind - m_lines.begin()) - 1;
    }
    void note(std::size_t line, std::size_t other, std::size_t point, std::size_t otherPoint)
    {
        ++m_between.try_emplace({line, other}, InterleavedLines{line, other, point, otherPoint, 0})
              .first->second.points;
    }

    std::span<const ListedLine> m_lines;
    std::span<const PointPlace> m_places;
    MeetingLimits m_limits;
    std::map<std::pair<std::size_t, std::size_t>, InterleavedLines> m_between; ///< by line, other
    std::vector<PointIndex::Found> m_near;
    LineMeetings m_found;
};

} // namespace

LineMeetings findMeetings(std::span<const ListedLine> lines, std::span<const PointPlace> places,
                          const std::function<const PointIndex&()>& index,
                          const MeetingLimits& limits)
{
    MeetingSearch search(lines, places, limits);
    for (const std::size_t line : search.candidates())
        search.search(line, index());
    return search.take();
}
