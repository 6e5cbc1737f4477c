#pragma once

#include "basalt_utilities/LocalTimes.h"

#include <QString>

#include <string>

/// The time zone of the settings, in which the program shows moments.
[[nodiscard]] basalt::LocalTimes shownTimes();

/// A moment in that zone, "yyyy/MM/dd hh:mm:ss". For many of them use `shownTimes`.
/// \param milliseconds since 1970 UTC
[[nodiscard]] std::string shownTime(std::int64_t milliseconds);

/// The name of that zone, such as "UTC+8".
[[nodiscard]] QString shownZone();
