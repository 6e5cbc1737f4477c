#include "quality/problems/ProblemLimits.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Numbers.h"
#include "model/CodeTables.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr std::array kSolutions{0, 4, 5, 2, 1};

// Of stored values, see StoredValueProblems.h. They are all off.
constexpr std::array kStoredValues{
    ProblemLimit{
        "solution_type_min", "0", QT_TRANSLATE_NOOP("ProblemLimits", "Solution type, at least"), "",
        7, true,
        QT_TRANSLATE_NOOP("ProblemLimits", "From the best: fixed, float, differential, single."),
        kSolutions, [](int code) { return solutionTypeText(code); }},
    ProblemLimit{"age_of_diff_max", "0",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Age of corrections, max."), "s", 1e6},
    ProblemLimit{"epoch_num_min", "0", QT_TRANSLATE_NOOP("ProblemLimits", "Epochs, min."), "", 1e6,
                 true},
    ProblemLimit{"occupation_min", "0", QT_TRANSLATE_NOOP("ProblemLimits", "Occupation, min."), "s",
                 1e6, false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "From start time to end time. A result without them has none.")},
    ProblemLimit{"rms_max", "0", QT_TRANSLATE_NOOP("ProblemLimits", "RMS, max."), "m", 1000},
    ProblemLimit{"neighbour_height_max", "0",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Height from that of its neighbours, max."),
                 "m", 1e4, false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "The height of a result is compared with the median of the "
                                   "nearest results.")},
};

// Of names, see NameProblems.h.
constexpr std::array kNames{
    ProblemLimit{"name_nearer_min", "2",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Nearer to another design point, min."), "m",
                 1e6, false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "A result that is nearer to another design point than to its "
                                   "own by more than this has a wrong name.")},
    ProblemLimit{"name_near_max", "1",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Distance from that point, max."), "m", 1e6,
                 false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "A stake that was moved aside from an obstacle is farther "
                                   "from all other points than this.")},
};

// Of lines, see LineProblems.h.
constexpr std::array kLines{
    ProblemLimit{"line_spacing_max", "40",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Spacing off the line's median, max."), "%",
                 1e4},
    ProblemLimit{"line_gap_max", "5",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Missing numbers in a row, max."), "", 1e6,
                 true,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "Longer gaps, and gaps beside each other in neighbouring "
                                   "lines, are taken for planned.")},
    ProblemLimit{"line_azimuth_max", "25",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Azimuth spike, max."), "\u00b0", 180, false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "A bend of the line is no spike: a spike leads away from the "
                                   "line and back.")},
    ProblemLimit{"line_reversed_min", "2",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Points in reversed order, min."), "", 1e6,
                 true},
    ProblemLimit{
        "line_coincident_max", "0.5",
        QT_TRANSLATE_NOOP("ProblemLimits", "Coincident points, max. distance"), "m", 1000, false,
        QT_TRANSLATE_NOOP("ProblemLimits", "Receivers and sources may be in the same place.")},
    ProblemLimit{"line_interleaved_min", "3",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Points among those of another line, min."), "",
                 1e6, true},
    ProblemLimit{"line_height_max", "15",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Height jump in the line, max."), "m", 1e4,
                 false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "Above or below all neighbours in the line; a slope is no "
                                   "jump.")},
    ProblemLimit{"line_skid_max", "50",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Stakes moved aside, max."), "m", 1e6, false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "For results that have no design points to compare them "
                                   "with. At 0 none counts as moved.")},
};

// Of points measured again, see CheckShotProblems.h and ShiftProblems.h.
constexpr std::array kListChoices{0, 1};
constexpr std::array kCheckShots{
    ProblemLimit{"check_shots_percent", "3",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Check shots of a crew and day"), "%", 100,
                 false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "How many of the points of a day are to be measured again. "
                                   "Not looked at when the next one is 0 as well.")},
    ProblemLimit{"check_shots_min", "2", QT_TRANSLATE_NOOP("ProblemLimits", "Check shots, min."),
                 "", 1000, true,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "Of a crew and a day, even when the share above is less. Not "
                                   "looked at when both are 0.")},
    ProblemLimit{"shift_plane_max", "0.1",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Shift of a base on the plane, max."), "m",
                 1000, false,
                 QT_TRANSLATE_NOOP("ProblemLimits", "What all results of a base and a day are off "
                                                    "by the same is a wrong base.")},
    ProblemLimit{"shift_height_max", "0.1",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Shift of a base or a pole in height, max."),
                 "m", 1000, false,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "What all results of a base or a rover and a day are off in "
                                   "height by the same is a wrong base or pole height.")},
    ProblemLimit{"shift_results_min", "10",
                 QT_TRANSLATE_NOOP("ProblemLimits", "Results that show a shift, min."), "", 1e5,
                 true,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "What fewer results of a base or a rover and a day show is no "
                                   "shift.")},
    ProblemLimit{"base_differences", "0",
                 QT_TRANSLATE_NOOP("ProblemLimits", "List of mean differences"), "", 1, true,
                 QT_TRANSLATE_NOOP("ProblemLimits",
                                   "What the results of a base and a day differ on average from "
                                   "the design, and from the first measurement of their points."),
                 kListChoices,
                 [](int /*choice*/) {
                     return QCoreApplication::translate("ProblemLimits", "Each base and day");
                 }},
};

// All groups: a new one is a line here.
constexpr std::array kGroups{
    ProblemLimitGroup{QT_TRANSLATE_NOOP("ProblemLimits", "Measurement"), kStoredValues},
    ProblemLimitGroup{QT_TRANSLATE_NOOP("ProblemLimits", "Names"), kNames},
    ProblemLimitGroup{QT_TRANSLATE_NOOP("ProblemLimits", "Lines"), kLines},
    ProblemLimitGroup{QT_TRANSLATE_NOOP("ProblemLimits", "Check shots"), kCheckShots},
};

} // namespace

std::span<const ProblemLimitGroup> problemLimitGroups()
{
    return kGroups;
}

const ProblemLimit* findProblemLimit(std::string_view key)
{
    for (const ProblemLimitGroup& group : kGroups) {
        const auto found = std::ranges::find_if(
            group.limits, [&](const ProblemLimit& limit) { return key == limit.key; });
        if (found != group.limits.end())
            return &*found;
    }
    return nullptr;
}

double problemLimit(const IDictionary& parameters, std::string_view key)
{
    const ProblemLimit* const limit = findProblemLimit(key);
    Q_ASSERT(limit != nullptr);
    return std::fabs(basalt::parseNumber(parameters.text(key, limit->fallback)));
}
