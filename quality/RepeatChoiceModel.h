#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "quality/RepeatChoice.h"

#include <memory>
#include <string>
#include <vector>

class QAbstractTableModel;

/// The place of the column that tells which measurement stays.
inline constexpr int kRepeatStaysColumn = 5;

/// A row of the list in which repeats are resolved; lengths are metres.
struct RepeatChoiceRow
{
    enum class Fate
    {
        Resolved,
        Left,    ///< the point stays as it is
        Unknown, ///< the choice is not whole
    };

    std::string pointNumber; ///< of a result that is there: the point's own, or its first one
    std::string lineNumber;
    std::string point; ///< the number of the point
    std::size_t measured = 0;
    double spreadM = 0;
    double heightSpreadM = 0;
    Fate fate = Fate::Resolved;
    std::string kept; ///< the number of the measurement; empty for a mean
    std::string time; ///< "yyyy/MM/dd hh:mm:ss"; empty when it is not known
    std::string surveyor;
    double hrmsM = 0;
    /// From the point's present result to the one that it gets.
    double movedM = 0;
    double heightM = 0;
};

/// What would become of each point.
/// \param planeUnitM metres a unit of the plane coordinates
[[nodiscard]] std::vector<RepeatChoiceRow>
repeatChoiceRows(const std::vector<RepeatedPoint>& points, const RepeatChoice& choice,
                 basalt::LocalTimes zone, double planeUnitM);

/// The rows as a table, see ResultModel.h.
[[nodiscard]] std::unique_ptr<QAbstractTableModel>
makeRepeatChoiceModel(std::vector<RepeatChoiceRow> rows);
