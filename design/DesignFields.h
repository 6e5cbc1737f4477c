#pragma once

#include <QString>

#include <array>
#include <cstdint>
#include <span>
#include <string>

/// The type of a grid's points, as `DesignPoint::type` has it.
enum class GridKind : std::int32_t
{
    Source = 0,
    Receiver = 1,
};

inline constexpr std::array kGridKinds{GridKind::Receiver, GridKind::Source};

/// The parameters of a grid.
enum class DesignField
{
    LineDistance,
    LineStart,
    LineEnd,
    LineStep,
    LineDigits,
    PointDistance,
    PointStart,
    PointEnd,
    PointStep,
    PointDigits,
    FirstLine,
    FirstPoint,
    StartNorth,
    StartEast,
    Azimuth,
    Reversal,
};

/// What a parameter's text must be.
enum class DesignValue
{
    Distance,
    Coordinate,
    Angle,
    Number, ///< whole
    Digits, ///< whole, from 0 to `kMostDigits`
    Step,   ///< whole, not 0
    Switch, ///< 0 or 1
};

inline constexpr int kMostDigits = 100;

/// A row of the table of parameters.
struct DesignParameter
{
    GridKind kind;
    DesignField field;
    DesignValue value;
    const char* key;      ///< in the design parameters of a project
    const char* fallback; ///< the value where the key is missing
    const char* caption;  ///< not translated, context "DlgDesignLine"

    /// The caption as a label has it, translated.
    [[nodiscard]] QString label() const;
    /// The caption as a sentence has it: without a colon, and with the kind of line where the
    /// caption is the same for both kinds.
    [[nodiscard]] QString name() const;
};

/// All parameters of both grids, those of the receivers first.
[[nodiscard]] std::span<const DesignParameter> designParameters();
[[nodiscard]] const DesignParameter& designParameter(GridKind kind, DesignField field);
/// Null when there is no such key.
[[nodiscard]] const DesignParameter* findDesignParameter(std::string_view key);
