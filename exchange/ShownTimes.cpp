#include "exchange/ShownTimes.h"

#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"

#include <array>

namespace {

int hoursEast()
{
    constexpr int kBeijingHours = 8; // of settings without a time zone
    return get_system_ini_parameter().dictionary().integer(settings::kTimeZone, kBeijingHours);
}

} // namespace

basalt::LocalTimes shownTimes()
{
    return basalt::LocalTimes(hoursEast());
}

QString shownZone()
{
    const int hours = hoursEast();
    return QLatin1String(hours < 0 ? "UTC" : "UTC+") + QString::number(hours);
}

std::string shownTime(std::int64_t milliseconds)
{
    std::array<char, basalt::LocalTimes::kTextSize> buffer{};
    return {buffer.data(), shownTimes().write(buffer.data(), milliseconds)};
}
