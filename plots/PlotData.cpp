#include "plots/PlotData.h"

#include <algorithm>
#include <iterator>
#include <numeric>

PlotData PlotData::ofAll(std::shared_ptr<const statistics::SurveySample> sample,
                         std::shared_ptr<const statistics::MeasuredPairs> pairs,
                         const basalt::LocalTimes& zone)
{
    PlotData data;
    data.places.resize(sample->results.size());
    std::iota(data.places.begin(), data.places.end(), 0U);
    data.design = sample->design;
    data.sample = std::move(sample);
    data.pairs = std::move(pairs);
    data.zone = zone;
    return data;
}

std::vector<std::uint32_t> PlotData::firstPlaces() const
{
    std::vector<std::uint32_t> first;
    first.reserve(places.size());
    std::copy_if(places.begin(), places.end(), std::back_inserter(first),
                 [this](std::uint32_t place) { return result(place).isFirst(); });
    return first;
}
