#pragma once

#include "basalt_utilities/Dictionary.h"
#include "model/PointLines.h"
#include "quality/problems/Acceptance.h"

#include <functional>

/// What an edit touches: bits of a set.
using EditScope = unsigned;
inline constexpr EditScope kDesignScope = 1;
inline constexpr EditScope kSurveyScope = 2;
inline constexpr EditScope kQualityScope = 4;
inline constexpr EditScope kDesignParameterScope = 8;
inline constexpr EditScope kCoordSystemScope = 16;
inline constexpr EditScope kAcceptanceScope = 32;

/// The data of the open project that edits change.
struct EditedData
{
    DesignPoints& design;
    SurveyPoints& survey;
    basalt::Dictionary& quality;
    basalt::Dictionary& designParameters;
    const IDictionary& coordSystem;
    /// Also computes the sea heights anew.
    std::function<void(const IDictionary&)> setCoordSystem;
    Acceptances& acceptances;

    template <class Points>
    [[nodiscard]] Points& points() const
    {
        if constexpr (std::is_same_v<Points, DesignPoints>)
            return design;
        else
            return survey;
    }
};
