#pragma once

#include "model/PointLines.h"
#include "protocol/Outcome.h"

#include <QStringList>

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

class ICoordTransform;
class ProgressReporter;

/// Design points that a crew is to measure, each once and with what is wrong there.
class CrewList
{
public:
    /// \param why  in one line; may be empty
    void add(const DesignPoint& point, const std::string& why);

    // What cannot be measured: it is not written, and the notice tells.

    /// A name to which no design point belongs.
    void addUnknown(std::string_view line, std::string_view number);
    /// Something that is wrong with a line or a group of results.
    void addWithoutPoint() { ++m_withoutPoint; }

    [[nodiscard]] const DesignPoints& points() const { return m_points; }
    [[nodiscard]] QStringList lines() const;
    /// What is wrong at a point of the list, as it was added.
    [[nodiscard]] const std::vector<std::string>& whysOf(const DesignPoint& point) const;
    /// How many points there are, how many have no result, and what cannot be measured.
    [[nodiscard]] QString notice() const;

private:
    using Name = std::pair<std::string, std::string>; ///< line, point

    [[nodiscard]] static Name nameOf(const DesignPoint& point)
    {
        return {point.lineNumber, point.pointNumber};
    }

    DesignPoints m_points;
    std::map<Name, std::vector<std::string>> m_whys;
    std::set<Name> m_unknown;
    std::size_t m_notSurveyed = 0; ///< points
    std::size_t m_withoutPoint = 0;
};

/// Writes the points as `writeDesignCsv` does; of a list without points the heading alone.
/// \returns with the list's notice when it is done; else the file is as it was
Outcome writeCrewCsv(const QString& path, const CrewList& list, ProgressReporter& progress);

/// The same as KML, for viewing on a globe: points alone, each telling what is wrong there.
Outcome writeCrewKml(const QString& path, const CrewList& list, ICoordTransform& transform,
                     ProgressReporter& progress);
