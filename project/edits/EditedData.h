#pragma once

#include "basalt_utilities/Dictionary.h"
#include "model/PointLines.h"
#include "quality/problems/Acceptance.h"

#include <functional>

/// Sets of what an edit touches.
enum EditScope : unsigned
{
    kDesignScope = 1,
    kSurveyScope = 2,
    kQualityScope = 4,
    kDesignParameterScope = 8,
    kCoordSystemScope = 16,
    kAcceptanceScope = 32,
};

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
