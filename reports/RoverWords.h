#pragma once

#include <QStringList>

#include <string_view>

// Words of the rover log.

/// The name of a rover, surveyor or base; of an empty one, that there is none.
[[nodiscard]] QString roverLogName(std::string_view name);

/// The first ones, and how many more there are.
[[nodiscard]] QString roverLogList(const QStringList& names);
