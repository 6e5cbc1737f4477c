#pragma once

#include "design/DesignFields.h"

#include <array>
#include <cstdint>
#include <optional>

class IDictionary;

/// The place of a point: north, east.
using DesignPlace = std::array<double, 2>;

/// The parameters of a grid of parallel lines. Lengths are in the unit of the coordinate system.
struct DesignGrid
{
    GridKind kind = GridKind::Receiver;
    double lineDistance = 15;
    std::int64_t lineStart = 0;
    std::int64_t lineEnd = 1000; ///< the last number that a line may have
    std::int64_t lineStep = 10;
    int lineDigits = 4; ///< zeros are put before shorter numbers
    double pointDistance = 15;
    std::int64_t pointStart = 0;
    std::int64_t pointEnd = 1000;
    std::int64_t pointStep = 10;
    int pointDigits = 4;
    std::int64_t firstLine = 0;  ///< no line below it is generated
    std::int64_t firstPoint = 0; ///< likewise
    double startNorth = 0;       ///< of the first point that is generated
    double startEast = 0;
    double azimuth = 0;      ///< dd.mmss: where numbers of points grow
    bool isReversed = false; ///< lines follow to the left of that, else to the right

    /// From the design parameters of a project.
    [[nodiscard]] static DesignGrid from(const IDictionary& parameters, GridKind kind);

    /// The numbers of the first line and point that are generated.
    [[nodiscard]] std::int64_t firstLineNumber() const;
    [[nodiscard]] std::int64_t firstPointNumber() const;
    /// How many there are, 0 when the first number is beyond the end. The steps must be above 0
    /// where there are any.
    [[nodiscard]] std::int64_t lineCount() const;
    [[nodiscard]] std::int64_t pointsALine() const;
    /// May be more than a whole number holds.
    [[nodiscard]] double pointCount() const;
};

/// Where the points of a grid lie. Azimuths go from north to east.
class GridPlaces
{
public:
    explicit GridPlaces(const DesignGrid& grid);

    /// Line and point are counted from 0.
    [[nodiscard]] DesignPlace at(double line, double point) const;
    /// From a line to the next, and from a point to the next.
    [[nodiscard]] const DesignPlace& lineShift() const { return m_line; }
    [[nodiscard]] const DesignPlace& pointShift() const { return m_point; }

private:
    DesignPlace m_start;
    DesignPlace m_line{};
    DesignPlace m_point{};
};

/// What is seen of a grid before it is generated.
struct GridOutline
{
    std::array<DesignPlace, 2> firstLine{}; ///< its first and its last point
    std::array<DesignPlace, 2> lastLine{};
    double area = 0; ///< between the outer points, square units

    /// Nothing for a grid without points.
    [[nodiscard]] static std::optional<GridOutline> of(const DesignGrid& grid);
};

/// Appends a number of a line or point with zeros before it, which follow its sign, up to so many
/// characters. A longer number is not cut.
void appendDesignNumber(std::string& text, std::int64_t number, int digits);

/// A value without fault as the design parameters keep it: all digits, never an exponent; an
/// azimuth with 9 decimals. \param text as `faultOf` reads it; an azimuth is dd.mmss
[[nodiscard]] std::string storedText(const DesignParameter& parameter, const QString& text);
