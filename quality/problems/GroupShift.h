#pragma once

#include "quality/statistics/SurveySample.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Results of a day or more that are all wrong by the same: those of a base whose coordinates are
/// wrong, or of a rover whose pole height is.
struct GroupShift
{
    enum class Cause : std::uint8_t
    {
        Base,       ///< all rovers that used the base
        Pole,       ///< the rover alone, in height
        BaseOrPole, ///< one rover used the base, and that one alone
        Survey      ///< all results of the survey, or of the day
    };
    enum class Evidence : std::uint8_t
    {
        Design, ///< they differ from the design
        Pairs   ///< those measured twice differ from the other measurement of their points
    };

    Cause cause = Cause::Base;
    Evidence evidence = Evidence::Design;
    /// The first and the last, since 1970/01/01; `kNoNumber` of results without times, and for all
    /// results of the survey.
    std::int64_t day = statistics::KeyValue::kNoNumber;
    std::int64_t lastDay = statistics::KeyValue::kNoNumber;
    std::string base;  ///< empty for a pole
    std::string rover; ///< empty for a base
    // How far the results are off, metres; 0 where they are not.
    double eastM = 0;
    double northM = 0;
    double heightM = 0;
    /// How well that is known.
    double planeKnownM = 0;
    double heightKnownM = 0;
    std::size_t results = 0;  ///< of the group, or its pairs, that can be compared
    std::size_t shared = 0;   ///< those of them that are off by this
    std::int64_t firstMs = 0; ///< the earliest of them; 0 without times

    [[nodiscard]] bool hasPlane() const { return eastM != 0 || northM != 0; }
    [[nodiscard]] bool hasHeight() const { return heightM != 0; }
    [[nodiscard]] double planeM() const; ///< the length on the plane
    /// Degrees clockwise from grid north, [0, 360).
    [[nodiscard]] double directionDeg() const;
    [[nodiscard]] bool contains(std::int64_t ofDay, std::string_view ofBase,
                                std::string_view ofRover) const;

    /// All but `firstMs` as one text, lengths in millimetres, and back.
    [[nodiscard]] std::string toText() const;
    [[nodiscard]] static GroupShift fromText(std::string_view text);
};
