#include "exchange/ShownTimes.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"

#include <array>

basalt::LocalTimes shownTimes()
{
    constexpr int kBeijingHours = 8; // of settings without a time zone
    return basalt::LocalTimes(
        get_system_ini_parameter().dictionary().integer(settings::kTimeZone, kBeijingHours));
}

std::string shownTime(std::int64_t milliseconds)
{
    std::array<char, basalt::LocalTimes::kTextSize> buffer{};
    return {buffer.data(), shownTimes().write(buffer.data(), milliseconds)};
}
