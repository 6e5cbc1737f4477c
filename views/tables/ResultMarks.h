#pragma once

#include "quality/colors/ResultColors.h"

#include <QIcon>
#include <QVariant>

#include <cstdint>
#include <string>
#include <vector>

/// The circles beside the names of points in tables, in the colours that results have on the map.
class ResultMarks
{
public:
    /// Reads what the user has chosen, and the open project's results, when they are others.
    /// \param areValuesOld values of results may have changed, too
    void renew(bool areValuesOld);
    [[nodiscard]] bool areShown() const { return !m_colors.isNone(); }

    /// The circle (decoration), or what its colour means (tool tip). Only while they are shown.
    /// \param result null for a design point without one, which gets a ring
    [[nodiscard]] QVariant look(const SurveyPoint* result, int role) const;

private:
    std::string m_state;          ///< see `resultMarksState`, at the last reading
    std::uint64_t m_revision = 0; ///< of the results, at the last reading; 0 for none
    ResultColors m_colors;
    std::vector<QIcon> m_circles; ///< of the classes
    QIcon m_ring;
};

/// What the marks depend on besides the points: they are to be renewed when it is another text.
[[nodiscard]] std::string resultMarksState();
