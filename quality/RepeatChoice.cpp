#include "quality/RepeatChoice.h"

#include "model/PointNumber.h"
#include "quality/QualityLimits.h"
#include "quality/ResurveyCheck.h"
#include "quality/ResurveyCode.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <tuple>

namespace {

using Measured = std::vector<const SurveyPoint*>;

constexpr char kRepeatMark = 'C';
constexpr int kFixedSolution = 4;
constexpr int kResurveyDigit = 10;            ///< of the quality code
constexpr double kSmallestAccuracyM = 0.0001; ///< what files hold

bool isPlaced(const SurveyPoint& point)
{
    return std::isfinite(point.north) && std::isfinite(point.east) &&
           std::isfinite(point.elevation);
}

/// The number of the point that a result measures again; empty when it does not.
std::string numberAgain(std::string_view number, std::string_view resurveyCode)
{
    std::string rest;
    if (!number.empty() && number.front() == kRepeatMark)
        rest = writtenPointNumber(number).substr(1);
    const std::string_view named = rest.empty() ? number : std::string_view(rest);
    if (!resurveyCode.empty() && named.find(resurveyCode) != std::string_view::npos)
        rest = withoutCode(named, resurveyCode);
    return rest;
}

void sortByTime(Measured& measured)
{
    const auto hasTime = [](const SurveyPoint* point) { return point->dateTime != 0; };
    if (std::ranges::all_of(measured, hasTime))
        std::ranges::stable_sort(measured, {}, &SurveyPoint::dateTime);
}

/// The smallest and the largest of some values.
class Range
{
public:
    void add(double value)
    {
        m_from = std::min(m_from, value);
        m_to = std::max(m_to, value);
    }
    [[nodiscard]] double length() const { return m_to < m_from ? 0 : m_to - m_from; }

private:
    double m_from = std::numeric_limits<double>::infinity();
    double m_to = -std::numeric_limits<double>::infinity();
};

void setSpread(RepeatedPoint& point, double planeUnitM)
{
    Range north;
    Range east;
    Range height;
    for (const SurveyPoint* const each : point.measured) {
        if (!isPlaced(*each))
            continue;
        north.add(each->north);
        east.add(each->east);
        height.add(each->elevation);
    }
    point.spreadM = std::hypot(north.length(), east.length()) * planeUnitM;
    point.heightSpreadM = height.length();
}

/// Finds the points of one line.
void addPoints(const DesignPoints::Line* design, const SurveyPoints::Line& line,
               std::string_view resurveyCode, std::vector<RepeatedPoint>& points)
{
    std::map<std::string, Measured> again;
    for (const SurveyPoint* const point : writtenOrder(line)) {
        std::string number = numberAgain(point->pointNumber, resurveyCode);
        if (number.empty() || (design != nullptr && design->find(point->pointNumber) != nullptr))
            continue;
        again[std::move(number)].push_back(point);
    }
    for (auto& [number, measured] : again) {
        const SurveyPoint* const own = line.find(number);
        if (own != nullptr)
            measured.insert(measured.begin(), own);
        if (measured.size() < 2)
            continue;
        sortByTime(measured);
        points.push_back({{measured.front()->lineNumber, number}, own, std::move(measured), 0, 0});
    }
}

double accuracyOf(const SurveyPoint& point)
{
    const double accuracy = std::hypot(point.horizontalAccuracy, point.verticalAccuracy);
    const bool isKnown = accuracy > 0 && point.horizontalAccuracy != 0; // false of NaN
    return isKnown ? accuracy : std::numeric_limits<double>::infinity();
}

/// Of equal ones the first.
const SurveyPoint& mostAccurate(const Measured& measured)
{
    return **std::ranges::min_element(measured, {}, [](const SurveyPoint* point) {
        return std::tuple(!isPlaced(*point), point->solutionType != kFixedSolution,
                          accuracyOf(*point));
    });
}

/// Weights of measurements by one of their accuracies.
class Weights
{
public:
    Weights(const Measured& measured, double SurveyPoint::*accuracy)
    {
        for (const SurveyPoint* const point : measured) {
            const double one = std::fabs(point->*accuracy);
            m_areKnown = m_areKnown && std::isfinite(one) && one > 0;
            m_weights.push_back(std::pow(std::max(one, kSmallestAccuracyM), -2));
        }
        if (!m_areKnown)
            std::ranges::fill(m_weights, 1);
        for (const double weight : m_weights)
            m_sum += weight;
    }

    /// \param differenceOf  how far a measurement is from the first one
    template <class Difference>
    [[nodiscard]] double mean(const Measured& measured, Difference differenceOf) const
    {
        double sum = 0;
        for (std::size_t i = 0; i < measured.size(); ++i)
            sum += m_weights[i] * differenceOf(*measured[i]);
        return sum / m_sum;
    }
    void setMean(const Measured& measured, double SurveyPoint::*member, SurveyPoint& to) const
    {
        const double first = measured.front()->*member; // so that no digits are lost
        to.*member =
            first + mean(measured, [&](const SurveyPoint& point) { return point.*member - first; });
    }
    /// The accuracy of the mean; stays as it is when one of them is not known.
    void setAccuracy(double SurveyPoint::*member, SurveyPoint& to) const
    {
        if (m_areKnown)
            to.*member = 1 / std::sqrt(m_sum);
    }

private:
    std::vector<double> m_weights;
    double m_sum = 0;
    bool m_areKnown = true;
};

/// Also where the meridian of 180 degrees lies between the measurements.
void setMeanPlaceOnGlobe(const Measured& measured, const Weights& weights, SurveyPoint& to)
{
    constexpr double kTurn = 360;
    const auto isUnknown = [](const SurveyPoint* point) {
        return point->latitude == 0 && point->longitude == 0;
    };
    if (std::ranges::any_of(measured, isUnknown))
        return;
    weights.setMean(measured, &SurveyPoint::latitude, to);
    const double first = measured.front()->longitude;
    const double east = weights.mean(measured, [&](const SurveyPoint& point) {
        return std::remainder(point.longitude - first, kTurn);
    });
    to.longitude = std::remainder(first + east, kTurn);
}

/// Of the measurements that tell how far they are from the design; the others hold 0.
void setMeanDeviations(Measured measured, SurveyPoint& to)
{
    std::erase_if(measured, [](const SurveyPoint* point) { return !hasDesignPosition(*point); });
    if (measured.empty())
        return;
    const Weights plane(measured, &SurveyPoint::horizontalAccuracy);
    plane.setMean(measured, &SurveyPoint::transversalDeviation, to);
    plane.setMean(measured, &SurveyPoint::longitudinalDeviation, to);
}

void setMean(Measured measured, SurveyPoint& to)
{
    std::erase_if(measured, [](const SurveyPoint* point) { return !isPlaced(*point); });
    if (measured.size() < 2)
        return;
    const Weights plane(measured, &SurveyPoint::horizontalAccuracy);
    const Weights height(measured, &SurveyPoint::verticalAccuracy);
    plane.setMean(measured, &SurveyPoint::north, to);
    plane.setMean(measured, &SurveyPoint::east, to);
    setMeanDeviations(measured, to);
    for (double SurveyPoint::*member :
         {&SurveyPoint::elevation, &SurveyPoint::altitude, &SurveyPoint::seaHeight})
        height.setMean(measured, member, to);
    setMeanPlaceOnGlobe(measured, plane, to);
    plane.setAccuracy(&SurveyPoint::horizontalAccuracy, to);
    height.setAccuracy(&SurveyPoint::verticalAccuracy, to);
}

/// What a measurement does not tell of its point is as in the point's own result.
void complete(SurveyPoint& result, const SurveyPoint& own)
{
    result.pointMark = own.pointMark;
    if (!hasDesignPosition(result)) {
        result.designNorth = own.designNorth;
        result.designEast = own.designEast;
        result.designElevation = own.designElevation;
        result.transversalDeviation = own.transversalDeviation;
        result.longitudinalDeviation = own.longitudinalDeviation;
    }
    for (std::string SurveyPoint::*text :
         {&SurveyPoint::obstacle, &SurveyPoint::remarks, &SurveyPoint::photoPath}) {
        if ((result.*text).empty())
            result.*text = own.*text;
    }
}

void forgetResurvey(SurveyPoint& point)
{
    point.qualityStandard -= resurveyDigit(point) * kResurveyDigit;
    point.isResurvey = resurvey::kNone;
    point.resurveyXDiff = point.resurveyYDiff = point.resurveyHDiff = 0;
    point.pairedNumber.clear();
}

} // namespace

std::vector<RepeatedPoint> repeatedPoints(const DesignPoints& design, const SurveyPoints& survey,
                                          std::string_view resurveyCode, double planeUnitM)
{
    std::vector<RepeatedPoint> points;
    for (const auto& [number, line] : survey)
        addPoints(design.findLine(number), line, resurveyCode, points);
    for (RepeatedPoint& point : points)
        setSpread(point, planeUnitM);
    return points;
}

bool RepeatChoice::leaves(const RepeatedPoint& point) const
{
    return rule == Rule::WeightedMean && !(point.spreadM <= toleranceM + kRoundingM &&
                                           point.heightSpreadM <= toleranceM + kRoundingM);
}

const SurveyPoint& RepeatChoice::bestOf(const RepeatedPoint& point) const
{
    const Measured& measured = point.measured;
    const auto placed = [](const SurveyPoint* each) { return isPlaced(*each); };
    if (rule == Rule::First) {
        const auto first = std::ranges::find_if(measured, placed);
        return first == measured.end() ? *measured.front() : **first;
    }
    if (rule == Rule::Last) {
        const auto last = std::find_if(measured.rbegin(), measured.rend(), placed);
        return last == measured.rend() ? *measured.back() : **last;
    }
    return mostAccurate(measured);
}

SurveyPoint RepeatChoice::resultOf(const RepeatedPoint& point) const
{
    SurveyPoint result = bestOf(point);
    if (point.own != nullptr)
        complete(result, *point.own);
    if (rule == Rule::WeightedMean)
        setMean(point.measured, result);
    result.lineNumber = point.name.line;
    result.pointNumber = point.name.point;
    forgetResurvey(result);
    return result;
}

ResolvedRepeats resolveRepeats(std::span<const RepeatedPoint* const> points,
                               const RepeatChoice& choice)
{
    ResolvedRepeats resolved;
    std::vector<PointName> names;
    for (const RepeatedPoint* const point : points) {
        if (choice.leaves(*point)) {
            ++resolved.left;
            continue;
        }
        resolved.results.set(choice.resultOf(*point));
        resolved.removed += point->measured.size() - 1;
        names.push_back(point->name);
        for (const SurveyPoint* const each : point->measured)
            names.push_back({each->lineNumber, each->pointNumber});
    }
    resolved.names = PointNames(names);
    return resolved;
}
