#include "samples/Misnaming.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

namespace demo {

namespace {

constexpr std::size_t kWrong = 3;
constexpr std::size_t kExchanged = 2; ///< pairs
constexpr std::size_t kUnknown = 2;
constexpr int kMistyped = 400; ///< added to a point number; no design point has the sum

/// The rover leads the surveyor to the point that he has named.
void name(SurveyPoint& result, const DesignPoint& design)
{
    result.lineNumber = design.lineNumber;
    result.pointNumber = design.pointNumber;
    result.designNorth = design.north;
    result.designEast = design.east;
    result.designElevation = design.elevation;
}

class Misnamer
{
public:
    Misnamer(const MisnamingInput& input, std::vector<StakedPoint>& good,
             std::vector<PlantedFault>& faults, Random& random)
        : m_input(input), m_good(good), m_faults(faults), m_random(random)
    {
    }

    /// One number off: a point is walked past, and the next one gets its name.
    void nameAfterForgotten()
    {
        std::size_t done = 0;
        for (std::size_t i = 0; i < m_input.design.size() && done < kWrong; ++i) {
            if (!m_input.isForgotten[i])
                continue;
            std::optional<SurveyPoint> result = takeAt(i + 1, i);
            std::size_t at = i + 1;
            if (!result)
                result = takeAt(at = i - 1, i); // of the first point it is none
            if (!result)
                continue;
            DesignPoint& forgotten = m_input.design[i];
            std::erase_if(m_faults, [&](const PlantedFault& fault) {
                return fault.kind == kMissing && fault.line == forgotten.lineNumber &&
                       fault.point == forgotten.pointNumber;
            });
            note("wrong name", forgotten, "measured at " + result->pointNumber);
            leaveEmpty(m_input.design[at], forgotten.pointNumber);
            name(*result, forgotten);
            forgotten.status = 1;
            m_named.push_back(std::move(*result));
            ++done;
        }
    }

    void exchangeNames()
    {
        for (std::size_t done = 0; done < kExchanged;) {
            const std::size_t at = m_good[m_random.index(m_good.size())].design;
            if (!isFree(at, at) || !isFree(at + 1, at))
                continue;
            SurveyPoint first = *takeAt(at, at);
            SurveyPoint second = *takeAt(at + 1, at);
            name(first, m_input.design[at + 1]);
            name(second, m_input.design[at]);
            note("exchanged names", m_input.design[at], "with " + first.pointNumber);
            note("exchanged names", m_input.design[at + 1], "with " + second.pointNumber);
            m_named.push_back(std::move(first));
            m_named.push_back(std::move(second));
            ++done;
        }
    }

    void nameAfterNothing()
    {
        for (std::size_t done = 0; done < kUnknown;) {
            const std::size_t at = m_good[m_random.index(m_good.size())].design;
            std::optional<SurveyPoint> result = takeAt(at, at);
            if (!result)
                continue;
            DesignPoint& design = m_input.design[at];
            const std::string typed = std::to_string(std::stoi(design.pointNumber) + kMistyped);
            note("unknown name", design, "its result is named " + typed);
            leaveEmpty(design, typed);
            result->pointNumber = typed;
            m_named.push_back(std::move(*result));
            ++done;
        }
    }

    std::vector<SurveyPoint> take() { return std::move(m_named); }

private:
    void note(const char* kind, const DesignPoint& design, std::string what)
    {
        m_faults.push_back({kind, design.lineNumber, design.pointNumber, std::move(what)});
    }
    void leaveEmpty(DesignPoint& design, const std::string& named)
    {
        note(kMissing, design, "its result is named " + named);
        design.status = 0;
    }

    [[nodiscard]] std::vector<StakedPoint>::iterator goodAt(std::size_t design)
    {
        return std::ranges::find(m_good, design, &StakedPoint::design);
    }
    /// Whether a design point has a good result, and is on the line of another one.
    [[nodiscard]] bool isFree(std::size_t design, std::size_t other)
    {
        const auto& points = m_input.design;
        return design < points.size() && !m_input.isTouched[design] && !m_input.isTouched[other] &&
               points[design].lineNumber == points[other].lineNumber &&
               goodAt(design) != m_good.end();
    }
    std::optional<SurveyPoint> takeAt(std::size_t design, std::size_t other)
    {
        if (!isFree(design, other))
            return std::nullopt;
        const auto found = goodAt(design);
        std::optional<SurveyPoint> taken = std::move(found->point);
        m_good.erase(found);
        return taken;
    }

    const MisnamingInput& m_input;
    std::vector<StakedPoint>& m_good;
    std::vector<PlantedFault>& m_faults;
    Random& m_random;
    std::vector<SurveyPoint> m_named;
};

} // namespace

std::vector<SurveyPoint> misname(const MisnamingInput& input, std::vector<StakedPoint>& good,
                                 std::vector<PlantedFault>& faults, Random& random)
{
    Misnamer misnamer(input, good, faults, random);
    misnamer.nameAfterForgotten();
    misnamer.exchangeNames();
    misnamer.nameAfterNothing();
    return misnamer.take();
}

} // namespace demo
