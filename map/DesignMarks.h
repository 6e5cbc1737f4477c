#pragma once

#include "map/MarkTable.h"
#include "map/ToMap.h"
#include "model/PointLines.h"

/// The design as the map draws it: a mark for each point, line after line in the byte order of the
/// numbers.
class DesignMarks
{
public:
    DesignMarks() = default;
    /// Points without a finite place are left out.
    DesignMarks(const DesignPoints& points, const ToMap& toMap);

    [[nodiscard]] const MarkTable& table() const { return m_table; }
    /// The type of the first mark of a line: 1 receiver, 0 source.
    /// \param line index in `table().lines()`
    [[nodiscard]] int typeOf(std::size_t line) const { return m_types[line]; }

private:
    MarkTable m_table;
    std::vector<int> m_types;
};
