#include "samples/Random.h"

namespace demo {

double Random::share()
{
    return static_cast<double>(m_engine() >> 11U) * 0x1p-53;
}

double Random::uniform(double from, double to)
{
    return from + (to - from) * share();
}

double Random::bell(double sigma)
{
    const double first = share();
    const double second = share();
    // The sum of three uniform numbers has a variance of 1/4.
    return (first + second + share() - 1.5) * 2 * sigma;
}

std::size_t Random::index(std::size_t count)
{
    return m_engine() % count;
}

int Random::whole(int from, int to)
{
    return from + static_cast<int>(index(static_cast<std::size_t>(to - from) + 1));
}

} // namespace demo
