#pragma once

#include <cstddef>
#include <string>

struct SurveyPoint;

/// The results that a check has met whose position is no number. A comparison with such a position
/// is always false, so the check finds no fault in them.
class UnplacedResults
{
public:
    void examine(const SurveyPoint& point);
    /// Tells their count in the log, and the names of the first of them.
    void warn() const;

private:
    std::size_t m_count = 0;
    std::string m_names;
};
