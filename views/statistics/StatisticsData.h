#pragma once

#include "plots/PlotData.h"

#include <memory>
#include <string>

/// The sample of the open project, for the table and the plots. It is read when it is asked for.
class StatisticsData
{
public:
    /// Whether there is a sample, and it is that of the points, limits, unit and time zone of now.
    [[nodiscard]] bool isCurrent() const;
    /// Reads the results of the open project.
    void read();
    /// Lets go of the sample, which points to results.
    void clear() { m_all = {}; }

    /// Null before `read`.
    [[nodiscard]] const std::shared_ptr<const statistics::SurveySample>& sample() const
    {
        return m_all.sample;
    }
    /// For plots, all of it.
    [[nodiscard]] const PlotData& all() const { return m_all; }

private:
    PlotData m_all;
    std::string m_state; ///< what the sample was read from
};
