#include "quality/problems/ProblemLimits.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Numbers.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace {

// Of stored values, see StoredValueProblems.h. They are all off.
constexpr std::array kStoredValues{
    ProblemLimit{"epochs_min", "0", QT_TRANSLATE_NOOP("ProblemLimits", "Fewest epochs"), "", 1e6,
                 true},
};

// All groups: a new one is a line here.
constexpr std::array kGroups{
    ProblemLimitGroup{QT_TRANSLATE_NOOP("ProblemLimits", "Measurement"), kStoredValues},
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
