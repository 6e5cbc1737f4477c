#pragma once

#include "quality/problems/GroupShift.h"

#include <vector>

/// A base or a rover that was compared with the design on a day.
struct ComparedGroup
{
    bool isRover = false;
    std::int64_t day = 0;
    std::string name;
};

/// Whether all bases that were compared, at least two or one on two days, are shifted alike.
[[nodiscard]] bool areAllAlike(const std::vector<GroupShift>& shifts,
                               const std::vector<ComparedGroup>& compared);

/// Puts one shift in place of several that are alike: one of the survey when all bases are shifted,
/// of a day when all those of the day are and there are several, else one of a base or a rover for
/// days of its work that follow each other. Shifted poles among them forbid the first two.
void uniteShifts(std::vector<GroupShift>& shifts, const std::vector<ComparedGroup>& compared);
