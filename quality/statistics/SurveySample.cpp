#include "quality/statistics/SurveySample.h"

#include "quality/QualityCheck.h"
#include "quality/QualityTests.h"
#include "quality/statistics/KeyTable.h"
#include "quality/statistics/Moments.h"

#include <cmath>
#include <string_view>
#include <utility>

namespace statistics {

namespace {

constexpr int kFixedSolution = 4;
constexpr std::int64_t kHourSeconds = 3600;
constexpr std::int64_t kDaySeconds = 24 * kHourSeconds;

std::size_t kindPlace(std::int32_t pointMark)
{
    return pointMark != 0 ? 1 : 0;
}

/// The differences from the design, and what stands beside them.
Observation measured(const SurveyPoint& point, double planeUnitM)
{
    Observation result;
    result.point = &point;
    result.northM = (point.north - point.designNorth) * planeUnitM;
    result.eastM = (point.east - point.designEast) * planeUnitM;
    result.distanceM = std::sqrt(result.northM * result.northM + result.eastM * result.eastM);
    result.heightM = point.elevation - point.designElevation;
    const bool hasDesign = point.designNorth != 0 || point.designEast != 0;
    if (!hasDesign || !std::isfinite(result.distanceM))
        result.northM = result.eastM = result.distanceM = kUnknown;
    if (!hasDesign || point.designElevation == 0 || !std::isfinite(result.heightM))
        result.heightM = kUnknown;
    result.horizontalAccuracyM = point.horizontalAccuracy;
    result.verticalAccuracyM = point.verticalAccuracy;
    result.pdop = point.pdop;
    result.satellites = point.satelliteNumber;
    result.isFixed = point.solutionType == kFixedSolution;
    result.timeMs = point.dateTime;
    return result;
}

void judge(Observation& result, const QualityLimits& limits)
{
    const SurveyPoint& point = *result.point;
    const QualityTest& design = quality_test::kDesignHorizontal;
    result.code = qualityCode(point, limits);
    const bool hasDesign = point.designNorth != 0 || point.designEast != 0;
    if (!hasDesign && (qualityDigit(result.code, design.power) & design.weight) != 0)
        result.code -= design.weight; // of the units digit
    // One value that is no number makes the sum none.
    const double values = result.distanceM + (point.elevation - point.designElevation) +
                          point.referenceDistance + point.horizontalAccuracy +
                          point.verticalAccuracy + point.antennaHeight + point.pdop + point.hdop +
                          point.vdop + point.transversalDeviation + point.longitudinalDeviation;
    if (result.code != 0)
        result.verdict = Verdict::Failed;
    else
        result.verdict = std::isfinite(values) ? Verdict::WithinLimits : Verdict::NotJudged;
}

class SampleReader
{
public:
    explicit SampleReader(SampleInput& input) : m_input(input)
    {
        m_sample.limits = input.limits;
        m_sample.results.reserve(input.survey.pointCount());
        valuesOf(GroupKey::PointKind) = {{"", 0}, {"", 1}};
    }

    /// \param design, survey null when there is no such line
    void readLine(const std::string& number, const PointLine<DesignPoint>* design,
                  const PointLine<SurveyPoint>* survey);
    [[nodiscard]] SurveySample finish();

private:
    [[nodiscard]] std::vector<KeyValue>& valuesOf(GroupKey key)
    {
        return m_sample.values[static_cast<std::size_t>(key)];
    }
    void countDesign(const DesignPoint& point, bool isStaked);
    void addResult(const SurveyPoint& point, bool isPlanned);
    [[nodiscard]] ResultKind kindOf(const SurveyPoint& point, bool isPlanned) const;
    void setKeys(Observation& result);

    /// Puts the values of a key in order.
    /// \returns for each place in the results' keys the one that it has now
    template <class Value>
    [[nodiscard]] std::vector<std::uint32_t> sortValues(GroupKey key, KeyTable<Value>& table);

    SampleInput& m_input;
    SurveySample m_sample;
    KeyTable<std::int64_t> m_days;
    KeyTable<std::int64_t> m_hours;
    KeyTable<std::string_view> m_rovers;
    KeyTable<std::string_view> m_surveyors;
    KeyTable<std::string_view> m_bases;
};

void SampleReader::readLine(const std::string& number, const PointLine<DesignPoint>* design,
                            const PointLine<SurveyPoint>* survey)
{
    static const PointLine<DesignPoint> kNoDesign;
    static const PointLine<SurveyPoint> kNoSurvey;
    const PointLine<DesignPoint>& planned = design != nullptr ? *design : kNoDesign;
    valuesOf(GroupKey::Line).push_back({number, 0});
    DesignCount& count = m_sample.designOfLine.emplace_back(DesignCount{planned.size(), 0});
    const std::size_t before = m_sample.results.size();
    std::size_t staked = 0;
    auto next = planned.begin();
    for (const SurveyPoint& point : survey != nullptr ? *survey : kNoSurvey) {
        int order = 1;
        while (next != planned.end() && (order = next->pointNumber.compare(point.pointNumber)) < 0)
            countDesign(*next++, false);
        const bool isPlanned = order == 0 && next != planned.end();
        addResult(point, isPlanned);
        if (isPlanned)
            countDesign(*next++, true);
        staked += isPlanned ? 1U : 0U;
    }
    for (; next != planned.end(); ++next)
        countDesign(*next, false);
    count.left = count.designed - staked;
    m_sample.design.designed += count.designed;
    m_sample.design.left += count.left;
    if (design == nullptr && m_sample.results.size() == before) {
        valuesOf(GroupKey::Line).pop_back();
        m_sample.designOfLine.pop_back();
    }
}

void SampleReader::countDesign(const DesignPoint& point, bool isStaked)
{
    DesignCount& count = m_sample.designOfKind[kindPlace(point.type)];
    ++count.designed;
    count.left += isStaked ? 0U : 1U;
}

void SampleReader::addResult(const SurveyPoint& point, bool isPlanned)
{
    if (m_input.isWanted && !m_input.isWanted(point))
        return;
    Observation& result =
        m_sample.results.emplace_back(measured(point, m_sample.limits.planeUnitM));
    judge(result, m_sample.limits);
    result.kind = kindOf(point, isPlanned);
    setKeys(result);
}

ResultKind SampleReader::kindOf(const SurveyPoint& point, bool isPlanned) const
{
    const std::string_view number = point.pointNumber;
    if (isPlanned)
        return ResultKind::Staked;
    if (number.substr(0, 1) == "C")
        return ResultKind::Repeat;
    const bool isResurvey = !m_input.resurveyCode.empty() &&
                            number.find(m_input.resurveyCode) != std::string_view::npos;
    return isResurvey ? ResultKind::Resurvey : ResultKind::Unplanned;
}

void SampleReader::setKeys(Observation& result)
{
    const SurveyPoint& point = *result.point;
    std::int64_t day = KeyValue::kNoNumber;
    std::int64_t hour = KeyValue::kNoNumber;
    if (result.timeMs != 0) {
        const std::int64_t clock = m_input.zone.clockSeconds(result.timeMs);
        day = dayOf(clock);
        hour = (clock - day * kDaySeconds) / kHourSeconds;
    }
    const auto set = [&](GroupKey key, std::size_t place) {
        result.keys[static_cast<std::size_t>(key)] = static_cast<std::uint32_t>(place);
    };
    set(GroupKey::Line, m_sample.designOfLine.size() - 1);
    set(GroupKey::Day, m_days.placeOf(day));
    set(GroupKey::Rover, m_rovers.placeOf(point.instrumentSerialNumber));
    set(GroupKey::Surveyor, m_surveyors.placeOf(point.surveyor));
    set(GroupKey::Base, m_bases.placeOf(point.baseStationId));
    set(GroupKey::Hour, m_hours.placeOf(hour));
    set(GroupKey::PointKind, kindPlace(point.pointMark));
}

template <class Value>
std::vector<std::uint32_t> SampleReader::sortValues(GroupKey key, KeyTable<Value>& table)
{
    std::vector<std::uint32_t> now = table.sort();
    for (const Value& value : table.values()) {
        if constexpr (std::is_integral_v<Value>)
            valuesOf(key).push_back({"", value});
        else
            valuesOf(key).push_back({std::string(value), 0});
    }
    return now;
}

SurveySample SampleReader::finish()
{
    const std::pair<GroupKey, std::vector<std::uint32_t>> sorted[] = {
        {GroupKey::Day, sortValues(GroupKey::Day, m_days)},
        {GroupKey::Rover, sortValues(GroupKey::Rover, m_rovers)},
        {GroupKey::Surveyor, sortValues(GroupKey::Surveyor, m_surveyors)},
        {GroupKey::Base, sortValues(GroupKey::Base, m_bases)},
        {GroupKey::Hour, sortValues(GroupKey::Hour, m_hours)}};
    for (Observation& result : m_sample.results) {
        for (const auto& [key, now] : sorted) {
            std::uint32_t& place = result.keys[static_cast<std::size_t>(key)];
            place = now[place];
        }
    }
    return std::move(m_sample);
}

} // namespace

std::int64_t dayOf(std::int64_t clockSeconds)
{
    return clockSeconds / kDaySeconds - (clockSeconds % kDaySeconds < 0 ? 1 : 0);
}

SurveySample sampleOf(SampleInput input)
{
    SampleReader reader(input);
    auto design = input.design.begin();
    auto survey = input.survey.begin();
    while (design != input.design.end() || survey != input.survey.end()) {
        const bool hasSurvey = survey != input.survey.end();
        const bool isDesigned =
            design != input.design.end() && (!hasSurvey || design->first <= survey->first);
        const bool isSurveyed = hasSurvey && (!isDesigned || design->first == survey->first);
        reader.readLine(isDesigned ? design->first : survey->first,
                        isDesigned ? &design->second : nullptr,
                        isSurveyed ? &survey->second : nullptr);
        if (isDesigned)
            ++design;
        if (isSurveyed)
            ++survey;
    }
    return reader.finish();
}

} // namespace statistics
