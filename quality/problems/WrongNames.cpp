#include "quality/problems/WrongNames.h"

#include "quality/problems/DesignWalk.h"
#include "quality/problems/Problem.h"

#include <unordered_map>
#include <utility>

namespace {

class NameCheck
{
public:
    NameCheck(const FinderInput& input, const NameLimits& limits)
        : m_input(input), m_limits(limits), m_names(input.design(), input.resurveyCode())
    {
    }

    void examineAll()
    {
        for (const auto& [number, line] : m_input.survey()) {
            DesignWalk walk(m_input.design().findLine(number));
            for (const SurveyPoint& result : line) {
                fetchAhead(result);
                if (const DesignPoint* const own = walk.find(result.pointNumber))
                    examine(result, {NameForm::First, {}, own});
                else
                    examineOther(line, result);
            }
        }
    }

    /// What the other results say about the right names.
    std::vector<WrongName> resolved()
    {
        for (std::size_t i = 0; i < m_found.size(); ++i)
            m_places.emplace(m_found[i].result, i);
        for (WrongName& wrong : m_found)
            resolve(wrong);
        std::vector<WrongName> kept;
        std::vector<std::size_t> places(m_found.size());
        for (std::size_t i = 0; i < m_found.size(); ++i) {
            places[i] = kept.size();
            if (isKept(m_found[i]))
                kept.push_back(std::move(m_found[i]));
        }
        for (WrongName& wrong : kept) {
            if (wrong.exchangedWith)
                wrong.exchangedWith = places[*wrong.exchangedWith];
        }
        return kept;
    }

private:
    void examine(const SurveyPoint& result, NamedPoint&& named)
    {
        const PointPlace place = placeOf(result, m_input.planeUnitM());
        const double ownM = distanceM(place, placeOf(*named.design, m_input.planeUnitM()));
        if (!(ownM > m_limits.nearerM))
            return;
        const bool isReceiver = named.design->type != 0;
        WrongName wrong{&result, std::move(named), nullptr, ownM};
        if (!lookFor(wrong, place, isReceiver) && isReceiver != (result.pointMark != 0))
            lookFor(wrong, place, !isReceiver);
        if (wrong.likely != nullptr && ownM - wrong.likelyM > m_limits.nearerM)
            m_found.push_back(std::move(wrong));
    }

    /// A result whose number the design has not as it stands.
    void examineOther(const SurveyPoints::Line& line, const SurveyPoint& result)
    {
        NamedPoint named = m_names.pointOf(result);
        if (named.design != nullptr)
            return examine(result, std::move(named));
        if (named.form != NameForm::First && line.find(named.number) != nullptr)
            return; // it is a second result of a point that was not designed
        const PointPlace place = placeOf(result, m_input.planeUnitM());
        const bool isReceiver = result.pointMark != 0;
        WrongName wrong{&result, std::move(named), nullptr, kNoValue};
        if (lookFor(wrong, place, isReceiver) || lookFor(wrong, place, !isReceiver))
            m_found.push_back(std::move(wrong));
    }

    bool lookFor(WrongName& wrong, const PointPlace& place, bool isReceiver) const
    {
        const IndexedPoints<DesignPoint>& design = m_input.indexedDesign(isReceiver);
        const auto found = design.index().nearest(place, m_limits.nearM);
        if (!found)
            return false;
        wrong.likely = &design[found->number];
        wrong.likelyM = found->distanceM;
        return true;
    }

    void resolve(WrongName& wrong)
    {
        const DesignPoint& likely = *wrong.likely;
        const NameForm form = wrong.named.form;
        wrong.proposed = {likely.lineNumber,
                          m_names.numberFor(likely.pointNumber, form, wrong.result->pointNumber)};
        if (form == NameForm::Check)
            return; // gets a counter, so that nothing is in its way
        const SurveyPoint* const standing =
            m_input.survey().find(wrong.proposed.line, wrong.proposed.point);
        if (standing == nullptr)
            return;
        wrong.isTaken = true;
        const auto other = m_places.find(standing);
        if (other == m_places.end()) {
            wrong.isAnother = isNear(*standing, likely);
            wrong.proposed.point = m_names.numberOfAnother(likely, form, m_input.survey());
        } else if (namesAs(m_found[other->second], *wrong.result)) {
            wrong.exchangedWith = other->second;
        }
    }

    [[nodiscard]] bool isNear(const SurveyPoint& result, const DesignPoint& point) const
    {
        const double unit = m_input.planeUnitM();
        return distanceM(placeOf(result, unit), placeOf(point, unit)) <= m_limits.nearerM;
    }

    /// Whether `wrong` would rightly have the name of `result`.
    [[nodiscard]] bool namesAs(const WrongName& wrong, const SurveyPoint& result) const
    {
        return wrong.likely->lineNumber == result.lineNumber &&
               m_names.numberFor(wrong.likely->pointNumber, wrong.named.form,
                                 wrong.result->pointNumber) == result.pointNumber;
    }

    /// A name of the user's own for a point that has a result is no fault, nor one that only adds
    /// to the point's number or shortens it.
    static bool isKept(const WrongName& wrong)
    {
        if (wrong.named.design != nullptr)
            return true;
        if (wrong.named.form == NameForm::First)
            return !wrong.isAnother;
        const std::string& number = wrong.likely->pointNumber;
        return number.find(wrong.named.number) == std::string::npos &&
               wrong.named.number.find(number) == std::string::npos;
    }

    const FinderInput& m_input;
    NameLimits m_limits;
    ResultNames m_names;
    std::vector<WrongName> m_found;
    std::unordered_map<const SurveyPoint*, std::size_t> m_places; ///< in `m_found`
};

} // namespace

NameLimits NameLimits::from(const FinderInput& input)
{
    return {input.limit("name_nearer_min"), input.limit("name_near_max")};
}

std::vector<WrongName> findWrongNames(const FinderInput& input, const NameLimits& limits)
{
    if (limits.nearerM == 0)
        return {};
    NameCheck check(input, limits);
    check.examineAll();
    return check.resolved();
}
