#pragma once

#include "quality/problems/ShiftCandidate.h"

/// From where on results count as shifted.
struct ShiftLimits
{
    double planeM = 0;     ///< 0 finds none on the plane
    double heightM = 0;    ///< 0 finds none in height
    std::size_t least = 0; ///< results that are compared with the design
    double skidM = 0;      ///< how far stakes may be moved aside from their line
};

/// Compares the results of bases and rovers with the design, see GroupShifts.h.
class ShiftDesign
{
public:
    /// All of them outlive it.
    ShiftDesign(const statistics::SurveySample& sample, const ShiftGroups& bases,
                const ShiftGroups& rovers, const ShiftLimits& limits);

    /// The bases that are shifted if all poles are right.
    [[nodiscard]] std::vector<ShiftCandidate> basesAlone() const;
    /// The bases and poles that are shifted.
    [[nodiscard]] std::vector<ShiftCandidate> basesAndPoles() const;

    /// Whether a group has enough results to be compared.
    [[nodiscard]] bool isComparable(const ShiftGroup& group) const;
    /// Whether the heights of the design agree with those of a group. Not when they are no better
    /// than those of an elevation model.
    [[nodiscard]] bool agreesInHeight(const ShiftGroup& group) const;

private:
    void setLevel();
    [[nodiscard]] std::vector<double> heightsOf(const ResultPlaces& places) const;
    [[nodiscard]] ShiftCandidate judgePlane(const ShiftGroup& group) const;
    [[nodiscard]] bool isSkid(const ShiftCandidate& candidate) const;
    void judgePlanes();
    void findShared(ShiftCandidate& candidate, const std::vector<double>& heightsM) const;
    void settleWithRover(ShiftCandidate& base, const ShiftGroup& rover) const;

    const statistics::SurveySample& m_sample;
    const ShiftGroups& m_bases;
    const ShiftGroups& m_rovers;
    const ShiftLimits m_limits;
    std::vector<ShiftCandidate> m_planes; ///< each base, judged on the plane alone
    std::vector<double> m_heightsM; ///< of each result, over the level of all; NaN when unknown
    double m_betweenM = 0;          ///< how far groups lie from that
    bool m_isPrecise = true;
};
