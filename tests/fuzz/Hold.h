#pragma once

#include "basalt_utilities/IDictionary.h"

#include <cstdio>
#include <cstdlib>

/// Ends the run when `condition` does not hold; the fuzzer then keeps the input that did it.
inline void hold(bool condition, const char* rule)
{
    if (condition)
        return;
    std::fprintf(stderr, "Broken: %s\n", rule);
    std::abort();
}

/// Holds when both have the same entries in the same order.
inline void holdSame(const IDictionary& a, const IDictionary& b, const char* rule)
{
    hold(a.size() == b.size(), rule);
    for (std::size_t i = 0; i < a.size(); ++i)
        hold(a.keyAt(i) == b.keyAt(i) && a.valueAt(i) == b.valueAt(i), rule);
}
