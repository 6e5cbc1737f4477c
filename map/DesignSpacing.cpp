#include "map/DesignSpacing.h"

#include "basalt_utilities/IDictionary.h"

#include <algorithm>

std::optional<double> smallestSpacing(const IDictionary& designParameters)
{
    if (designParameters.size() == 0)
        return std::nullopt;
    const auto spacing = [&](const char* key) { return designParameters.number(key, 10); };
    return std::min({spacing("r_pt_dist"), spacing("s_pt_dist"), spacing("r_line_dist"),
                     spacing("s_line_dist")});
}
