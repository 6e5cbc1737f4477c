#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "quality/ResurveyTolerances.h"
#include "quality/statistics/MeasuredPairs.h"
#include "quality/statistics/SurveySample.h"

#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

/// What plots show. It points to the survey's results, as its sample does: a plot gets new data
/// before the containers change their `revision`, or is cleared by data without a sample.
struct PlotData
{
    std::shared_ptr<const statistics::SurveySample> sample; ///< null: nothing to show
    /// The shown results, ascending, as places in the sample's results. Plots show the first
    /// measurements among them, as statistics do, and the pairs whose later result is one of them.
    std::vector<std::uint32_t> places;
    std::shared_ptr<const statistics::MeasuredPairs> pairs; ///< resurveys and repeats; may be null
    ResurveyTolerances tolerances;                          ///< of the pairs, metres
    /// What the shown results are to be held against; nothing designed for what has no design of
    /// its own, such as those of a rover.
    statistics::DesignCount design;
    basalt::LocalTimes zone; ///< the shown time zone
    QString subject;         ///< for titles: "Line 1001"; may be empty

    /// All results of a sample.
    [[nodiscard]] static PlotData
    ofAll(std::shared_ptr<const statistics::SurveySample> sample,
          std::shared_ptr<const statistics::MeasuredPairs> pairs = nullptr,
          const basalt::LocalTimes& zone = {});

    /// The results of `places`; none without a sample.
    [[nodiscard]] const statistics::Observation& result(std::uint32_t place) const
    {
        return sample->results[place];
    }
    /// Those of `places` that are first measurements.
    [[nodiscard]] std::vector<std::uint32_t> firstPlaces() const;
};
