#include "basalt_utilities/IDictionary.h"

#include "basalt_utilities/Numbers.h"

std::string_view IDictionary::text(std::string_view key, std::string_view fallback) const
{
    return find(key).value_or(fallback);
}

int IDictionary::integer(std::string_view key, int fallback) const
{
    const auto value = find(key);
    return value ? basalt::parseInteger(*value) : fallback;
}

double IDictionary::number(std::string_view key, double fallback) const
{
    const auto value = find(key);
    return value ? basalt::parseNumber(*value) : fallback;
}
