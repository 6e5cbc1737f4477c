#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "model/PointLines.h"
#include "quality/problems/IndexedPoints.h"
#include "quality/problems/ProblemLimits.h"
#include "quality/QualityLimits.h"

#include <mutex>
#include <optional>
#include <string>

class IDictionary;

/// What problems are found in. The checks have written their verdicts on the points.
struct ProblemInput
{
    const DesignPoints& design;
    const SurveyPoints& survey;
    const IDictionary& parameters; ///< "qc_param.ini"
    double planeUnitM = 1;         ///< metres a unit of the plane coordinates
    basalt::LocalTimes zone{};     ///< the shown time zone
};

/// What the finders share. Any number of threads may use it at once.
class FinderInput
{
public:
    /// \param data  outlives it
    explicit FinderInput(const ProblemInput& data);

    FinderInput(const FinderInput&) = delete;
    FinderInput& operator=(const FinderInput&) = delete;

    [[nodiscard]] const DesignPoints& design() const { return m_data.design; }
    [[nodiscard]] const SurveyPoints& survey() const { return m_data.survey; }
    [[nodiscard]] const IDictionary& parameters() const { return m_data.parameters; }
    [[nodiscard]] double planeUnitM() const { return m_data.planeUnitM; }
    /// A copy, since the object is for one thread.
    [[nodiscard]] basalt::LocalTimes zone() const { return m_data.zone; }

    /// Those of the quality check.
    [[nodiscard]] const QualityLimits& quality() const { return m_quality; }
    [[nodiscard]] const std::string& resurveyCode() const { return m_resurveyCode; }
    /// A limit of ProblemLimits.h.
    [[nodiscard]] double limit(std::string_view key) const
    {
        return problemLimit(m_data.parameters, key);
    }

    // Points by their places, in metres; an index is made when it is asked for first.

    /// \param isReceiver  of the design point itself, not of its line
    [[nodiscard]] const IndexedPoints<DesignPoint>& indexedDesign(bool isReceiver) const;
    [[nodiscard]] const IndexedPoints<SurveyPoint>& indexedResults() const;

private:
    template <class Point>
    struct Late
    {
        std::once_flag isMade;
        std::optional<IndexedPoints<Point>> points;
    };

    const ProblemInput& m_data;
    QualityLimits m_quality;
    std::string m_resurveyCode;
    mutable Late<DesignPoint> m_sources;
    mutable Late<DesignPoint> m_receivers;
    mutable Late<SurveyPoint> m_results;
};
