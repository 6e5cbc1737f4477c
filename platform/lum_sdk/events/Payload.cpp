#include "lum_sdk/events/Payload.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"

namespace payload {

void read(const char* payload, IDictionary& values, char separator)
{
    values.clear();
    if (payload != nullptr)
        csa_to_dictionary(values, payload, '=', separator);
}

std::string progress(std::string_view caption, double percent)
{
    return "text=" + basalt::quotedValue(caption) + ",value=" + basalt::formatGeneral(percent) +
           ",is_exec=0";
}

std::string started(std::string_view caption)
{
    return "text=" + basalt::quotedValue(caption) + ",value=0";
}

std::string busy(std::string_view caption)
{
    return "text=" + basalt::quotedValue(caption) + ",scroll=1";
}

std::string position(double north, double east)
{
    return "N=" + basalt::formatShortest(north) + " E=" + basalt::formatShortest(east);
}

} // namespace payload
