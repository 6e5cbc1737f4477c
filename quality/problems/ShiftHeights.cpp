#include "quality/problems/ShiftHeights.h"

#include "quality/problems/Median.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>
#include <unordered_map>
#include <utility>

namespace {

using Number = std::uint32_t;

constexpr std::size_t kLeastTogether = 3; // results that connect a base and a rover

/// What a base and a rover measured together.
struct Cell
{
    Number base = 0; ///< as a place in `HeightSearch::m_nodes`, as the rover
    Number rover = 0;
    std::size_t count = 0;
    double heightM = 0; ///< the median
};

/// A base or a rover on a day.
struct Node
{
    const ShiftGroup* group = nullptr;
    bool isWrong = false;
    double valueM = 0; ///< what it is off
    SteadyOffset offset{};
};

/// Bases and rovers connected by cells, each with what it is off (a rover: minus that), but for a
/// height that is the same for all of them.
class Connections
{
public:
    explicit Connections(std::size_t nodes) : m_setOf(nodes), m_sets(nodes), m_levels(nodes)
    {
        for (std::size_t node = 0; node < nodes; ++node) {
            m_setOf[node] = node;
            m_sets[node].push_back(static_cast<Number>(node));
        }
    }

    /// A cell of nodes that are connected already tells nothing new.
    void connect(const Cell& cell)
    {
        std::size_t target = m_setOf[cell.base];
        std::size_t source = m_setOf[cell.rover];
        if (target == source)
            return;
        double raiseM = m_levels[cell.base] - cell.heightM - m_levels[cell.rover];
        if (m_sets[target].size() < m_sets[source].size()) {
            std::swap(target, source);
            raiseM = -raiseM;
        }
        for (const Number node : m_sets[source]) {
            m_levels[node] += raiseM;
            m_setOf[node] = target;
            m_sets[target].push_back(node);
        }
        m_sets[source].clear();
    }

    [[nodiscard]] const std::vector<std::vector<Number>>& sets() const { return m_sets; }
    [[nodiscard]] double level(Number node) const { return m_levels[node]; }

private:
    std::vector<std::size_t> m_setOf;
    std::vector<std::vector<Number>> m_sets;
    std::vector<double> m_levels;
};

class HeightSearch
{
public:
    HeightSearch(std::span<const double> heightsM, const ShiftGroups& bases,
                 const ShiftGroups& rovers, const SteadyOffset::Rule& rule)
        : m_heightsM(heightsM), m_bases(bases), m_rovers(rovers), m_rule(rule)
    {
        for (const ShiftGroups* const groups : {&bases, &rovers}) {
            for (const ShiftGroup& group : groups->groups)
                m_nodes.push_back({.group = &group});
        }
    }

    [[nodiscard]] ShiftHeights run()
    {
        suppose();
        dropUnsteady();
        keepOutstanding();
        dropUnsteady();
        ShiftHeights found;
        for (const Node& node : m_nodes)
            (isRover(node) ? found.ofRover : found.ofBase)
                .push_back(node.isWrong ? node.offset : SteadyOffset());
        found.onlyRover = std::move(m_onlyRover);
        return found;
    }

private:
    [[nodiscard]] static bool isRover(const Node& node)
    {
        return node.group->key == statistics::GroupKey::Rover;
    }
    [[nodiscard]] Number baseOf(Number place) const { return m_bases.groupOf[place]; }
    [[nodiscard]] Number roverOf(Number place) const
    {
        return static_cast<Number>(m_bases.groups.size()) + m_rovers.groupOf[place];
    }
    /// The rover of a result of a base, the base of one of a rover.
    [[nodiscard]] Number otherOf(const Node& node, Number place) const
    {
        return isRover(node) ? baseOf(place) : roverOf(place);
    }

    [[nodiscard]] std::vector<Cell> cells() const;
    void suppose();
    [[nodiscard]] double levelOf(const Connections& connections,
                                 const std::vector<Number>& set) const;
    [[nodiscard]] SteadyOffset measure(const Node& node) const;
    void dropUnsteady();
    void keepOutstanding();
    [[nodiscard]] double ordinaryM(const Node& node) const;

    std::span<const double> m_heightsM;
    const ShiftGroups& m_bases;
    const ShiftGroups& m_rovers;
    const SteadyOffset::Rule m_rule;
    std::vector<Node> m_nodes; ///< the bases, then the rovers
    std::vector<Number> m_onlyRover;
};

/// The largest first, since they are known best.
std::vector<Cell> HeightSearch::cells() const
{
    constexpr int kBits = 32;
    std::unordered_map<std::uint64_t, std::vector<double>> heights;
    for (Number place = 0; place < m_heightsM.size(); ++place) {
        if (std::isfinite(m_heightsM[place]))
            heights[std::uint64_t(baseOf(place)) << kBits | roverOf(place)].push_back(
                m_heightsM[place]);
    }
    std::vector<Cell> cells;
    for (const auto& [key, values] : heights) {
        if (values.size() >= kLeastTogether)
            cells.push_back({static_cast<Number>(key >> kBits), static_cast<Number>(key),
                             values.size(), medianOf(values)});
    }
    std::ranges::sort(cells, [](const Cell& a, const Cell& b) {
        return std::tuple(b.count, a.base, a.rover) < std::tuple(a.count, b.base, b.rover);
    });
    return cells;
}

void HeightSearch::suppose()
{
    Connections connections(m_nodes.size());
    for (const Cell& cell : cells())
        connections.connect(cell);
    m_onlyRover.assign(m_bases.groups.size(), ShiftHeights::kNone);
    for (const std::vector<Number>& set : connections.sets()) {
        if (set.size() < 2)
            continue;
        const double levelM = levelOf(connections, set);
        for (const Number number : set) {
            Node& node = m_nodes[number];
            const double aboveM = connections.level(number) - levelM;
            node.valueM = isRover(node) ? -aboveM : aboveM;
            node.isWrong = std::fabs(node.valueM) > m_rule.limitM;
        }
        if (set.size() == 2) {
            const auto [base, rover] = std::minmax(set[0], set[1]);
            m_onlyRover[base] = rover - static_cast<Number>(m_bases.groups.size());
        }
    }
}

/// The median is what all are off from by least in sum, and for an even number all between the
/// middle two.
double HeightSearch::levelOf(const Connections& connections, const std::vector<Number>& set) const
{
    std::vector<double> levels;
    levels.reserve(set.size());
    for (const Number node : set)
        levels.push_back(connections.level(node));
    std::ranges::sort(levels);
    const auto costOf = [&](double levelM) {
        std::pair<std::size_t, double> cost; // how many are wrong, how far the poles are off
        for (const Number node : set) {
            const double offM = std::fabs(connections.level(node) - levelM);
            cost.first += offM > m_rule.limitM ? 1U : 0U;
            cost.second += isRover(m_nodes[node]) ? offM : 0;
        }
        return cost;
    };
    const double low = levels[(levels.size() - 1) / 2];
    const double high = levels[levels.size() / 2];
    return costOf(high) < costOf(low) ? high : low;
}

/// What a base or a rover is off when the wrong ones among the others are right.
SteadyOffset HeightSearch::measure(const Node& node) const
{
    std::vector<double> heights;
    heights.reserve(node.group->members.size());
    for (const Number place : node.group->members) {
        const Node& other = m_nodes[otherOf(node, place)];
        if (std::isfinite(m_heightsM[place]))
            heights.push_back(m_heightsM[place] - (other.isWrong ? other.valueM : 0));
    }
    return SteadyOffset::ofHeights(heights, m_rule);
}

/// One that is right again may change what others are off.
void HeightSearch::dropUnsteady()
{
    for (bool isSettled = false; !isSettled;) {
        isSettled = true;
        for (Node& node : m_nodes) {
            if (!node.isWrong)
                continue;
            node.offset = measure(node);
            node.valueM = node.offset.heightM;
            node.isWrong = node.offset.isFound;
            isSettled = isSettled && node.isWrong;
        }
    }
}

/// How far a group that is not wrong is off; 0 when it scatters more than that.
double HeightSearch::ordinaryM(const Node& node) const
{
    constexpr double kSigmas = 2;
    const SteadyOffset offset = measure(node);
    const double lengthM = std::fabs(offset.heightM);
    return offset.isSteady() && (lengthM <= m_rule.limitM || lengthM > kSigmas * offset.sigmaM)
               ? lengthM
               : 0;
}

/// Where heights differ slowly from group to group, as those of a geoid or an elevation model do,
/// none is a fault of its own.
void HeightSearch::keepOutstanding()
{
    constexpr double kFactor = 2;
    std::vector<std::pair<double, Node*>> wrong;
    for (Node& node : m_nodes) {
        if (node.isWrong)
            wrong.emplace_back(std::fabs(node.valueM), &node);
    }
    if (wrong.empty())
        return;
    double largestM = 0;
    for (const Node& node : m_nodes) {
        if (!node.isWrong)
            largestM = std::max(largestM, ordinaryM(node));
    }
    std::ranges::sort(wrong);
    for (const auto& [lengthM, node] : wrong) {
        if (lengthM > kFactor * largestM)
            return;
        node->isWrong = false;
        largestM = std::max(largestM, lengthM);
        std::set<Number> touched;
        for (const Number place : node->group->members)
            touched.insert(otherOf(*node, place));
        for (const Number other : touched) {
            if (!m_nodes[other].isWrong)
                largestM = std::max(largestM, ordinaryM(m_nodes[other]));
        }
    }
}

} // namespace

ShiftHeights findShiftHeights(std::span<const double> heightsM, const ShiftGroups& bases,
                              const ShiftGroups& rovers, const SteadyOffset::Rule& rule)
{
    if (rule.limitM <= 0)
        return {std::vector<SteadyOffset>(bases.groups.size()),
                std::vector<SteadyOffset>(rovers.groups.size()),
                std::vector<Number>(bases.groups.size(), ShiftHeights::kNone)};
    return HeightSearch(heightsM, bases, rovers, rule).run();
}
