#include "quality/problems/LineShape.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace {

using Line = std::span<const LinePoint>;
using Kind = LineFinding::Kind;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kDegrees = 180 / std::numbers::pi;
constexpr double kAdjacent = 1.5;  ///< spacings that neighbours are apart at most
constexpr double kLongest = 3.5;   ///< numbers of a step beyond which a bend may be cut off
constexpr double kOpposite = -0.5; ///< cosine between steps that run against each other
constexpr std::size_t kAskew = 3;  ///< results in a row that were not all moved aside

double median(std::vector<double>& values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// From one point of a line to the next.
struct Step
{
    double eastM;
    double northM;
    double lengthM;
    double numbers;
};

double dot(const Step& a, const Step& b)
{
    return a.eastM * b.eastM + a.northM * b.northM;
}

Step stepBetween(const LinePoint& from, const LinePoint& to)
{
    const double east = to.place.eastM - from.place.eastM;
    const double north = to.place.northM - from.place.northM;
    return {east, north, std::sqrt(east * east + north * north), to.number - from.number};
}

bool areOpposite(const Step& a, const Step& b)
{
    return dot(a, b) < kOpposite * a.lengthM * b.lengthM;
}

/// From `a` to `b`, clockwise, degrees in [-180, 180].
double turn(const Step& a, const Step& b)
{
    return std::atan2(b.eastM * a.northM - b.northM * a.eastM, dot(a, b)) * kDegrees;
}

/// Between two azimuths, degrees in [0, 180].
double between(double aDeg, double bDeg)
{
    return aDeg == bDeg ? 0 : std::fabs(std::remainder(aDeg - bDeg, 360));
}

LineMeasures measuresOf(const std::vector<Step>& steps)
{
    if (steps.size() + 1 < kFewestLinePoints)
        return {};
    std::vector<double> values(steps.size());
    std::ranges::transform(steps, values.begin(), &Step::numbers);
    const double numbers = median(values);
    if (numbers <= 0)
        return {};
    std::ranges::transform(steps, values.begin(), [&](const Step& step) {
        return step.lengthM / std::max(step.numbers, numbers / 2);
    });
    return {median(values) * numbers, numbers, 0};
}

std::vector<Step> stepsOf(Line line)
{
    std::vector<Step> steps;
    for (std::size_t i = 1; i < line.size(); ++i)
        steps.push_back(stepBetween(line[i - 1], line[i]));
    return steps;
}

/// Examines one line, check after check.
class LineExam
{
public:
    LineExam(Line line, const LineLimits& limits, std::vector<LineFinding>& findings)
        : m_line(line), m_limits(limits), m_findings(findings), m_steps(stepsOf(line)),
          m_measures(measuresOf(m_steps)), m_isTold(line.size())
    {
        m_measures.spacingOffM =
            std::max(limits.spacingShare * m_measures.spacingM, 2 * limits.skidM);
    }

    void run()
    {
        if (m_measures.spacingM > 0) {
            if (m_limits.reversedPoints > 0)
                findReversed();
            if (m_limits.gapNumbers > 0)
                findGaps();
            if (m_limits.azimuthDeg > 0)
                findSpikes();
            if (m_limits.spacingShare > 0)
                findSpacings();
        }
        if (m_limits.azimuthDeg > 0)
            findBearings();
        if (m_limits.heightM > 0)
            findHeights();
    }

    [[nodiscard]] const LineMeasures& measures() const { return m_measures; }

private:
    /// Steps whose length and direction say nothing, since much of the line lies between.
    [[nodiscard]] bool isLong(std::size_t step) const
    {
        return m_steps[step].numbers > kLongest * m_measures.numberStep;
    }
    [[nodiscard]] double expectedM(std::size_t step) const
    {
        return m_measures.spacingM * m_steps[step].numbers / m_measures.numberStep;
    }
    /// How much longer a step is than its numbers say, metres.
    [[nodiscard]] double offBy(std::size_t step) const
    {
        return m_steps[step].lengthM - expectedM(step);
    }
    /// Whether a value comes so often in a line that it was meant. \param sorted  all of its kind
    [[nodiscard]] bool isPattern(const std::vector<double>& sorted, double value,
                                 double alike) const
    {
        constexpr std::ptrdiff_t kFew = 3;
        constexpr std::ptrdiff_t kPart = 10; // of the line
        const auto count = std::ranges::upper_bound(sorted, value + alike) -
                           std::ranges::lower_bound(sorted, value - alike);
        return count > std::max(kFew, std::ssize(m_steps) / kPart);
    }
    [[nodiscard]] std::uint32_t missingIn(std::size_t step) const
    {
        return static_cast<std::uint32_t>(
            std::clamp(std::round(m_steps[step].numbers / m_measures.numberStep) - 1, 0.0, 4e9));
    }
    void add(const LineFinding& finding)
    {
        m_findings.push_back(finding);
        m_isTold[finding.at] = true;
    }

    /// A stretch runs against the line when the steps before and after it lead the other way, and
    /// over it. A hairpin does not lead back, and in a zigzag every step leads on.
    void findReversed()
    {
        for (std::size_t i = 0; i < m_steps.size(); ++i) {
            if (i > 0 && !areOpposite(m_steps[i - 1], m_steps[i]))
                continue;
            const std::size_t last = endOfStretch(i);
            if (isAgainst(i, last)) {
                tellReversed(i, last);
                i = last + 1; // the step that leads on
            }
        }
    }
    /// The last of the steps that go on without turning round.
    [[nodiscard]] std::size_t endOfStretch(std::size_t first) const
    {
        std::size_t last = first;
        while (last + 1 < m_steps.size() && !areOpposite(m_steps[last], m_steps[last + 1]))
            ++last;
        return last;
    }
    [[nodiscard]] bool isAgainst(std::size_t first, std::size_t last) const
    {
        const bool isFirst = first == 0;
        const bool isLast = last + 1 == m_steps.size();
        const std::size_t points = last - first + 2;
        if (isFirst == isLast ? isFirst : 2 * points > m_line.size())
            return false; // it is the line
        const bool mayBeSkids = m_limits.skidM > 0 && points <= kAskew;
        if (mayBeSkids || static_cast<double>(points) < m_limits.reversedPoints)
            return false;
        if (isFirst || isLast) {
            const double passedM = stepBetween(m_line[first], m_line[last + 1]).lengthM;
            return m_steps[isFirst ? last + 1 : first - 1].lengthM >
                   passedM + m_measures.spacingM / 2;
        }
        // The second look tells it from points that are far beside the line in turns.
        return leadsBackOver(first, first - 1, last + 2) &&
               leadsBackOver(first, first > 1 ? first - 2 : 0,
                             std::min(last + 3, m_line.size() - 1)) &&
               (isJump(first - 1) || isJump(last + 1));
    }
    [[nodiscard]] bool leadsBackOver(std::size_t step, std::size_t from, std::size_t to) const
    {
        return areOpposite(m_steps[step], stepBetween(m_line[from], m_line[to]));
    }
    [[nodiscard]] bool isJump(std::size_t step) const
    {
        return m_steps[step].lengthM > kAdjacent * expectedM(step);
    }
    void tellReversed(std::size_t first, std::size_t last)
    {
        add({Kind::Reversed, first, last + 1, kNaN, kNaN,
             static_cast<std::uint32_t>(last - first + 2)});
        const std::size_t end = std::min(last + 3, m_line.size());
        for (std::size_t i = first > 0 ? first - 1 : 0; i < end; ++i)
            m_isTold[i] = true;
    }

    void findGaps()
    {
        std::vector<double> gaps;
        for (std::size_t i = 0; i < m_steps.size(); ++i) {
            if (const std::uint32_t missing = missingIn(i); missing != 0)
                gaps.push_back(missing);
        }
        std::ranges::sort(gaps);
        for (std::size_t i = 0; i < m_steps.size(); ++i) {
            const std::uint32_t missing = missingIn(i);
            if (missing == 0 || isPattern(gaps, missing, 0))
                continue; // every second point, say
            const bool isAdjacent = m_steps[i].lengthM < kAdjacent * m_measures.spacingM;
            const bool isFault = missing <= m_limits.gapNumbers || isAdjacent;
            if (isAdjacent && isFault)
                m_isTold[i + 1] = true; // its place is right
            m_findings.push_back({isFault ? Kind::Gap : Kind::Hole, i, i + 1,
                                  static_cast<double>(missing), m_steps[i].lengthM, missing});
        }
    }

    /// A point sticks out when the ways to it and from it leave the sector between the directions
    /// of the line before and behind, on both sides of it.
    void findSpikes()
    {
        const double flat = std::cos(m_limits.azimuthDeg / kDegrees);
        for (std::size_t i = 1; i + 1 < m_line.size(); ++i) {
            const Step& in = m_steps[i - 1];
            const Step& out = m_steps[i];
            if (dot(in, out) > flat * in.lengthM * out.lengthM) // not even a bend
                continue;
            if (m_isTold[i] || isLong(i - 1) || isLong(i))
                continue;
            if (const double deg = spikeDeg(i); deg > m_limits.azimuthDeg)
                tellSpike(i, stepBetween(m_line[i - 1], m_line[i + 1]), deg);
        }
        findSpikeAtEnd(0, 1, 2, 3);
        const std::size_t last = m_line.size() - 1;
        findSpikeAtEnd(last, last - 1, last - 2, last - 3);
    }
    [[nodiscard]] double spikeDeg(std::size_t i) const
    {
        const Step chord = stepBetween(m_line[i - 1], m_line[i + 1]);
        double least = 0;
        double most = 0;
        const auto widen = [&](std::size_t step) {
            if (isLong(step))
                return;
            const double deg = turn(chord, m_steps[step]);
            least = std::min(least, deg);
            most = std::max(most, deg);
        };
        if (i >= 2)
            widen(i - 2);
        if (i + 1 < m_steps.size())
            widen(i + 1);
        const double in = turn(chord, m_steps[i - 1]);
        const double out = turn(chord, m_steps[i]);
        return std::max(std::min(in - most, least - out), std::min(out - most, least - in));
    }
    /// The end of a line that is straight there.
    void findSpikeAtEnd(std::size_t end, std::size_t next, std::size_t third, std::size_t fourth)
    {
        const std::size_t first = std::min(end, fourth);
        for (std::size_t step = first; step < first + 3; ++step) {
            if (isLong(step))
                return;
        }
        const Step last = stepBetween(m_line[next], m_line[end]);
        const Step before = stepBetween(m_line[third], m_line[next]);
        const double bendDeg = std::fabs(turn(stepBetween(m_line[fourth], m_line[third]), before));
        const double deg = std::fabs(turn(before, last));
        constexpr double kStraight = 0.2;
        if (!m_isTold[end] && !m_isTold[next] && deg > m_limits.azimuthDeg &&
            bendDeg < kStraight * m_limits.azimuthDeg)
            tellSpike(end, before, deg);
    }
    /// \param straight  the direction of the line
    void tellSpike(std::size_t at, const Step& straight, double deg)
    {
        const std::size_t neighbour = at > 0 ? at - 1 : at + 1;
        const Step off = stepBetween(m_line[neighbour], m_line[at]);
        const double offM =
            std::fabs(off.eastM * straight.northM - off.northM * straight.eastM) / straight.lengthM;
        if (m_limits.skidM == 0 || offM > m_limits.skidM)
            add({Kind::Azimuth, at, neighbour, deg, offM});
    }

    void findSpacings()
    {
        std::vector<double> offM;
        for (std::size_t i = 0; i < m_steps.size(); ++i) {
            if (isOff(i))
                offM.push_back(offBy(i));
        }
        std::ranges::sort(offM);
        const double alikeM = m_limits.spacingShare * m_measures.spacingM / 4;
        for (std::size_t i = 0; i < m_steps.size(); ++i) {
            if (!isOff(i) || m_isTold[i] || m_isTold[i + 1] || isPattern(offM, offBy(i), alikeM))
                continue;
            const bool isNextOff = i + 1 < m_steps.size() && isOff(i + 1) && !m_isTold[i + 2];
            const std::size_t at = i == 0 && !isNextOff ? 0 : i + 1;
            add({Kind::Spacing, at, at == 0 ? 1 : i, m_steps[i].lengthM, m_measures.spacingM});
        }
    }
    /// Whether a step is too long or too short for its numbers, and its neighbours are not so too.
    [[nodiscard]] bool isOff(std::size_t step) const
    {
        if (isLong(step))
            return false;
        const double offM = offBy(step);
        const double limitM = m_limits.spacingShare * m_measures.spacingM;
        if (std::fabs(offM) <= m_measures.spacingOffM)
            return false;
        const auto isLikewise = [&](std::size_t other) {
            return !isLong(other) && std::fabs(offBy(other) - offM) <= limitM / 2;
        };
        return (step == 0 || !isLikewise(step - 1)) &&
               (step + 1 == m_steps.size() || !isLikewise(step + 1));
    }

    void findBearings()
    {
        const auto differ = [this](std::size_t a, std::size_t b) {
            return between(m_line[a].azimuthDeg, m_line[b].azimuthDeg) > m_limits.azimuthDeg;
        };
        const std::size_t count = m_line.size();
        for (std::size_t i = 0; i < count && count >= kFewestLinePoints; ++i) {
            const std::size_t first = std::clamp<std::size_t>(i, 2, count - 3) - 2;
            bool isAlone = true; // and the two beside it agree, so that it is no bend
            for (std::size_t k = first; k < first + kFewestLinePoints; ++k)
                isAlone &= k == i || differ(i, k);
            const std::size_t before = i > 0 ? i - 1 : 2;
            const std::size_t after = i + 1 < count ? i + 1 : i - 2;
            if (isAlone && !differ(before, after))
                m_findings.push_back(
                    {Kind::Bearing, i, before, m_line[i].azimuthDeg, m_line[before].azimuthDeg});
        }
    }

    /// A height is judged by the four nearest along the line: it may be beyond all but one of them
    /// by the limit, and by as much as the slope there changes it.
    void findHeights()
    {
        std::vector<std::size_t> known;
        for (std::size_t i = 0; i < m_line.size(); ++i) {
            if (std::isfinite(m_line[i].heightM))
                known.push_back(i);
        }
        constexpr std::size_t kWindow = 5;
        if (known.size() < kWindow)
            return;
        for (std::size_t i = 0; i < known.size(); ++i) {
            const std::size_t first = std::clamp<std::size_t>(i, 2, known.size() - 3) - 2;
            std::array<double, kWindow> heights{};
            for (std::size_t k = 0; k < kWindow; ++k)
                heights[k] = m_line[known[first + k]].heightM;
            const double jumpM = jump(heights, i - first);
            if (std::fabs(jumpM) > m_limits.heightM)
                m_findings.push_back(
                    {Kind::Height, known[i], known[i > 0 ? i - 1 : 1], jumpM, kNaN});
        }
    }
    /// How far one of five heights lies beyond the others, metres up.
    static double jump(const std::array<double, 5>& heights, std::size_t at)
    {
        std::array<double, 4> others{};
        std::copy_n(heights.begin(), at, others.begin());
        std::copy(heights.begin() + static_cast<std::ptrdiff_t>(at) + 1, heights.end(),
                  others.begin() + static_cast<std::ptrdiff_t>(at));
        const double left = std::fabs(others[1] - others[0]);
        const double right = std::fabs(others[3] - others[2]);
        const double slopeM = at == 2
                                  ? std::min(left, right)
                                  : 3 * std::max({left, right, std::fabs(others[2] - others[1])});
        std::ranges::sort(others);
        const double height = heights[at];
        if (height > others[2])
            return std::max(height - others[2] - slopeM, 0.0);
        return std::min(height - others[1] + slopeM, 0.0);
    }

    Line m_line;
    const LineLimits& m_limits;
    std::vector<LineFinding>& m_findings;
    std::vector<Step> m_steps;
    LineMeasures m_measures;
    std::vector<bool> m_isTold; ///< by point: its place has a finding
};

} // namespace

LineMeasures examineLine(std::span<const LinePoint> line, const LineLimits& limits,
                         std::vector<LineFinding>& findings)
{
    const std::size_t before = findings.size();
    LineExam exam(line, limits, findings);
    exam.run();
    std::stable_sort(findings.begin() + static_cast<std::ptrdiff_t>(before), findings.end(),
                     [](const auto& a, const auto& b) { return a.at < b.at; });
    return exam.measures();
}
