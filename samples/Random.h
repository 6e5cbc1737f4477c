#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace demo {

/// Random numbers that are the same on every machine. The standard library fixes the numbers of its
/// engine but not those of its distributions, so the distributions are here.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_engine(seed) {}

    /// At least `from`, less than `to`.
    [[nodiscard]] double uniform(double from, double to);

    /// Around 0 with a standard deviation of `sigma`, at most three times `sigma` away: so a limit
    /// beyond that is never exceeded.
    [[nodiscard]] double bell(double sigma);

    /// From 0 to `count` - 1; `count` is not 0.
    [[nodiscard]] std::size_t index(std::size_t count);

    /// From `from` to `to`, both included.
    [[nodiscard]] int whole(int from, int to);

private:
    [[nodiscard]] double share(); ///< at least 0, less than 1

    std::mt19937_64 m_engine;
};

} // namespace demo
