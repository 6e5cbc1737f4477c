#pragma once

#include "model/PointLines.h"

#include <string>

/// Walks along the points of a design line beside the results of the line, which have the same
/// order.
class DesignWalk
{
public:
    explicit DesignWalk(const DesignPoints::Line* line) : m_line(line)
    {
        if (line != nullptr)
            m_next = line->begin();
    }

    /// \param number  not before those that were asked for
    [[nodiscard]] const DesignPoint* find(const std::string& number)
    {
        if (m_line == nullptr)
            return nullptr;
        while (!(m_next == m_line->end())) {
            fetchAhead(*m_next);
            const int order = m_next->pointNumber.compare(number);
            if (order >= 0)
                return order == 0 ? &*m_next : nullptr;
            ++m_next;
        }
        return nullptr;
    }

private:
    const DesignPoints::Line* m_line;
    DesignPoints::Line::const_iterator m_next;
};
