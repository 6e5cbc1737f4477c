#pragma once

namespace bench {

/// How often the program has asked for memory so far; counted in programs that link
/// Allocations.cpp.
[[nodiscard]] long allocations();

} // namespace bench
