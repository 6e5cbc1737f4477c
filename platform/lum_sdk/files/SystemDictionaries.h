#pragma once

#include "lum_sdk/files/SystemParameter.h"

// The dictionaries that the whole process shares. They belong to the GUI thread.

/// The program's configuration, read at start and never written: "name", "version", "extension"
/// and the keys of the analytics session.
[[nodiscard]] SystemParameter& get_system_config_parameter();

/// The system settings, such as "un_coordUnit", "time_zone" and "language": installed defaults
/// with the user's choices over them.
[[nodiscard]] SystemParameter& get_system_ini_parameter();

/// Display state that commands write and the frame reads to enable and check its entries. Who
/// changes it publishes "UPDATE_SYSTEM_STATUS_EVENT".
[[nodiscard]] IDictionary& get_system_status_dictionary();
