#pragma once

#include <span>

namespace demo {

/// A key of "qc_param.ini" and its value.
struct DemoLimit
{
    const char* key;
    const char* value;
};

/// The limits of the demo project that are off in a new one, mostly of stored values.
[[nodiscard]] std::span<const DemoLimit> demoLimits();

} // namespace demo
