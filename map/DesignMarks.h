#pragma once

#include "map/MarkTable.h"
#include "map/ToMap.h"
#include "model/PointLines.h"

/// The drawing cache of the design: its points as marks, line after line in the order of bytes.
class DesignMarks
{
public:
    /// Forgets what it held. Points without a finite place are left out.
    void rebuild(const DesignPoints& points, const ToMap& toMap);

    [[nodiscard]] const MarkTable& table() const { return m_table; }
    /// 1 receiver, 0 source: the type of the line's first mark, lines counted as in the table.
    [[nodiscard]] int typeOf(std::size_t line) const { return m_types[line]; }

private:
    MarkTable m_table;
    std::vector<int> m_types;
};
