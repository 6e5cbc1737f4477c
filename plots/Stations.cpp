#include "plots/Stations.h"

#include "lum_sdk/ShortenedText.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int kFewLines = 2;
constexpr int kMostLetters = 10;

bool isBefore(const Stations::Line& line, double value)
{
    return line.before < value;
}

} // namespace

std::shared_ptr<const Stations> Stations::of(const PlotData& data,
                                             const std::vector<std::uint32_t>& places)
{
    auto stations = std::make_shared<Stations>();
    stations->points.reserve(places.size());
    std::uint32_t line = 0;
    for (const std::uint32_t place : places) {
        const statistics::Observation& result = data.result(place);
        const std::uint32_t own = result.key(statistics::GroupKey::Line);
        if (stations->lines.empty() || own != line)
            stations->lines.push_back(
                {double(stations->points.size()) - 0.5,
                 lum::shortened(lum::toQString(result.point->lineNumber), kMostLetters)});
        line = own;
        stations->points.push_back(lum::shortened(
            lum::toQString(writtenPointNumber(result.point->pointNumber)), kMostLetters));
    }
    return stations;
}

QString Stations::label(double value) const
{
    const auto line = std::lower_bound(lines.begin(), lines.end(), value, isBefore);
    if (line != lines.end() && line->before == value)
        return line->name;
    const double place = std::round(value);
    if (place < 0 || place >= double(points.size()) || std::fabs(value - place) > 0.01)
        return {};
    return points[std::size_t(place)];
}

QwtScaleDiv StationEngine::divideScale(double from, double to, int mostTicks, int mostMinor,
                                       double step) const
{
    const auto& lines = m_stations->lines;
    const auto first = std::lower_bound(lines.begin(), lines.end(), from, isBefore);
    const auto last = std::lower_bound(first, lines.end(), to, isBefore);
    if (last - first <= kFewLines) {
        const double whole = std::max({1.0, step, divideInterval(to - from, mostTicks)});
        return QwtLinearScaleEngine::divideScale(from, to, mostTicks, mostMinor, std::ceil(whole));
    }
    QList<double> ticks;
    const double least = (to - from) / std::max(1, mostTicks);
    for (auto line = first; line != last; ++line) {
        if (ticks.isEmpty() || line->before - ticks.back() >= least)
            ticks << line->before;
    }
    return QwtScaleDiv(from, to, {}, {}, ticks);
}
