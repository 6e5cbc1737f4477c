#pragma once

#include "exchange/CoordPairs.h"
#include "model/SurveyPoint.h"

#include <QString>

#include <cstdint>
#include <map>
#include <vector>

class IDictionary;

/// The results of another project beside what the current project's coordinate system makes of
/// their latitudes, longitudes and ellipsoidal heights.
///
/// One row a result, in the order given; a result without line or point number has none. Positions
/// on the plane are in the unit of the coordinate systems.
class CoordCompare
{
public:
    /// \param current coordinate parameters of the project
    /// \param file    those that the results come with
    CoordCompare(const IDictionary& current, const IDictionary& file,
                 std::vector<SurveyPoint> records);

    [[nodiscard]] std::size_t size() const { return m_records.size(); }
    [[nodiscard]] const SurveyPoint& record(std::size_t row) const { return m_records[row]; }

    /// North, east and height as the other project has them.
    [[nodiscard]] const CoordTriple& stored(std::size_t row) const { return m_stored[row]; }
    /// The same as the project's system has them; not numbers when the transformation failed.
    [[nodiscard]] const CoordTriple& transformed(std::size_t row) const
    {
        return m_transformed[row];
    }
    /// Transformed minus stored.
    [[nodiscard]] CoordTriple difference(std::size_t row) const { return pairs().difference(row); }
    [[nodiscard]] CoordPairs pairs() const { return {m_stored, m_transformed}; }

    [[nodiscard]] bool isFailed(std::size_t row) const { return m_codes[row] != 0; }
    /// Why the transformation of a row failed, in the coordinate service's words; empty when it did
    /// not.
    [[nodiscard]] QString message(std::size_t row) const { return m_messages.at(m_codes[row]); }

private:
    void transform(const IDictionary& current, const IDictionary& file);

    std::vector<SurveyPoint> m_records;
    std::vector<CoordTriple> m_stored;
    std::vector<CoordTriple> m_transformed;
    std::vector<std::int32_t> m_codes; ///< results of the coordinate service
    std::map<std::int32_t, QString> m_messages{{0, {}}};
};
