#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace demo {

/// Random numbers that are the same on every machine: the distributions of the standard library
/// differ from one to the other, its engine does not.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_engine(seed) {}

    /// From `from` up to, without, `to`.
    [[nodiscard]] double uniform(double from, double to);

    /// About 0, with a standard deviation of `sigma` and never further than three of them: a limit
    /// that lies beyond holds for certain.
    [[nodiscard]] double bell(double sigma);

    /// From 0 to `count` - 1; `count` is not 0.
    [[nodiscard]] std::size_t index(std::size_t count);

    /// From `from` to `to`, both of them too.
    [[nodiscard]] int whole(int from, int to);

private:
    [[nodiscard]] double share();

    std::mt19937_64 m_engine;
};

} // namespace demo
