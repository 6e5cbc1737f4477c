#pragma once

#include "model/PointName.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <vector>

class IDesktopHost;
class IPointList;
class StatisticsData;

/// What the window "Statistics" shows in the tables of the points and on the map. Results are
/// places in the sample of its data, which is that of now.
class StatisticsLinks
{
public:
    using Places = std::vector<std::uint32_t>;
    struct Shown
    {
        QString what; ///< "Rover 5432"
        Places places;
        /// In the table of the design; those that the results have staked when there are none.
        std::optional<std::vector<PointName>> design;
    };

    /// \param host, data outlive this
    StatisticsLinks(IDesktopHost& host, const StatisticsData& data) : m_host(host), m_data(data) {}

    /// Both tables show these alone, and the map marks the results.
    void showOnly(const Shown& shown);
    /// The same when the results are others: without marks, and not in a table that shows all
    /// points again, since the user has asked for them there.
    void renew(const Shown& shown);
    /// The tables show all points again, and the map marks none.
    void showAllAgain();
    /// What a table shows alone; empty when all show all.
    [[nodiscard]] QString shown() const;

    /// Shows a result in its table; the map follows.
    void goTo(std::uint32_t place) const;
    /// The same; the map zooms to it.
    void zoomTo(std::uint32_t place) const;

private:
    /// Null when there is no such table.
    [[nodiscard]] IPointList* list(const char* name) const;
    void showIn(IPointList& list, const Shown& shown, bool isOfDesign) const;
    [[nodiscard]] std::vector<PointName> namesOf(const Places& places, bool isOfStaked) const;
    void mark(const Places& places) const;

    IDesktopHost& m_host;
    const StatisticsData& m_data;
    QString m_shown;
};
