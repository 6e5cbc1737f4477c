#pragma once

#include <cstddef>
#include <span>

/// Whether differences have an offset that nearly all of them share, such as that of a wrong base
/// or pole, and not of some outliers. Computed from medians, so that a few gross errors do not
/// matter.
struct SteadyOffset
{
    /// What makes an offset.
    struct Rule
    {
        std::size_t least = 0; ///< differences
        double limitM = 0;     ///< the offset is larger; 0 finds none
        double spreadM = 0;    ///< that groups without an offset have among each other
    };

    bool isFound = false;
    double eastM = 0; ///< the median; on the plane of each axis
    double northM = 0;
    double heightM = 0;
    double sigmaM = 0; ///< standard deviation, from the median of the distances from the median
    double bandM = 0;  ///< how far from the offset a difference still shares it
    std::size_t count = 0;
    std::size_t shared = 0;

    [[nodiscard]] static SteadyOffset ofHeights(std::span<const double> heightsM, const Rule& rule);
    [[nodiscard]] static SteadyOffset ofPlane(std::span<const double> eastM,
                                              std::span<const double> northM, const Rule& rule);

    /// Whether nearly all share it, be it large or small.
    [[nodiscard]] bool isSteady() const;
    /// How far the offset may be from the true one.
    [[nodiscard]] double knownM() const;
    [[nodiscard]] bool sharesHeight(double differenceM) const;
    [[nodiscard]] bool sharesPlane(double differenceEastM, double differenceNorthM) const;
};
