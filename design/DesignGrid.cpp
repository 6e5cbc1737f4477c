#include "design/DesignGrid.h"

#include "basalt_utilities/IDictionary.h"
#include "basalt_utilities/Numbers.h"
#include "lum_sdk/coords/Angles.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <numbers>

namespace {

/// Reads the parameters of one kind of grid.
class Reader
{
public:
    Reader(const IDictionary& parameters, GridKind kind) : m_parameters(parameters), m_kind(kind) {}

    [[nodiscard]] double number(DesignField field) const
    {
        return basalt::parseNumber(text(field));
    }
    [[nodiscard]] int integer(DesignField field) const { return basalt::parseInteger(text(field)); }

private:
    [[nodiscard]] std::string_view text(DesignField field) const
    {
        const DesignParameter& parameter = designParameter(m_kind, field);
        return m_parameters.text(parameter.key, parameter.fallback);
    }

    const IDictionary& m_parameters;
    GridKind m_kind;
};

std::int64_t countOf(std::int64_t first, std::int64_t end, std::int64_t step)
{
    return first > end || step <= 0 ? 0 : (end - first) / step + 1;
}

double lengthOf(const DesignPlace& shift)
{
    return std::hypot(shift[0], shift[1]);
}

std::string allDigits(double value)
{
    std::array<char, 400> text{};
    const auto written =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed);
    return {text.data(), written.ptr};
}

std::string azimuthText(double dms)
{
    std::string text = basalt::formatFixed(dms, 9);
    const bool isRoundedUp = !lum::isSexagesimal(basalt::parseNumber(text)); // to 60 seconds
    return isRoundedUp ? lum::angleText(convetFromAngle(dms), 9) : text;
}

} // namespace

DesignGrid DesignGrid::from(const IDictionary& parameters, GridKind kind)
{
    const Reader read(parameters, kind);
    DesignGrid grid;
    grid.kind = kind;
    grid.lineDistance = read.number(DesignField::LineDistance);
    grid.lineStart = read.integer(DesignField::LineStart);
    grid.lineEnd = read.integer(DesignField::LineEnd);
    grid.lineStep = read.integer(DesignField::LineStep);
    grid.lineDigits = read.integer(DesignField::LineDigits);
    grid.pointDistance = read.number(DesignField::PointDistance);
    grid.pointStart = read.integer(DesignField::PointStart);
    grid.pointEnd = read.integer(DesignField::PointEnd);
    grid.pointStep = read.integer(DesignField::PointStep);
    grid.pointDigits = read.integer(DesignField::PointDigits);
    grid.firstLine = read.integer(DesignField::FirstLine);
    grid.firstPoint = read.integer(DesignField::FirstPoint);
    grid.startNorth = read.number(DesignField::StartNorth);
    grid.startEast = read.number(DesignField::StartEast);
    grid.azimuth = read.number(DesignField::Azimuth);
    grid.isReversed = read.integer(DesignField::Reversal) != 0;
    return grid;
}

std::int64_t DesignGrid::firstLineNumber() const
{
    return std::max(firstLine, lineStart);
}

std::int64_t DesignGrid::firstPointNumber() const
{
    return std::max(firstPoint, pointStart);
}

std::int64_t DesignGrid::lineCount() const
{
    return countOf(firstLineNumber(), lineEnd, lineStep);
}

std::int64_t DesignGrid::pointsALine() const
{
    return countOf(firstPointNumber(), pointEnd, pointStep);
}

double DesignGrid::pointCount() const
{
    return static_cast<double>(lineCount()) * static_cast<double>(pointsALine());
}

GridPlaces::GridPlaces(const DesignGrid& grid) : m_start{grid.startNorth, grid.startEast}
{
    const double along = Angle2Radian(grid.azimuth);
    const double across = along + std::numbers::pi / 2; // dd.mmss below 0 has no plain sum with 90
    const double side = grid.isReversed ? -grid.lineDistance : grid.lineDistance;
    m_point = {grid.pointDistance * std::cos(along), grid.pointDistance * std::sin(along)};
    m_line = {side * std::cos(across), side * std::sin(across)};
}

DesignPlace GridPlaces::at(double line, double point) const
{
    return {m_start[0] + line * m_line[0] + point * m_point[0],
            m_start[1] + line * m_line[1] + point * m_point[1]};
}

std::optional<GridOutline> GridOutline::of(const DesignGrid& grid)
{
    if (grid.lineCount() == 0 || grid.pointsALine() == 0)
        return {};
    const GridPlaces places(grid);
    const auto line = static_cast<double>(grid.lineCount() - 1);
    const auto point = static_cast<double>(grid.pointsALine() - 1);
    return GridOutline{{places.at(0, 0), places.at(0, point)},
                       {places.at(line, 0), places.at(line, point)},
                       line * lengthOf(places.lineShift()) * point * lengthOf(places.pointShift())};
}

void appendDesignNumber(std::string& text, std::int64_t number, int digits)
{
    std::array<char, 24> written{};
    const char* const end =
        std::to_chars(written.data(), written.data() + written.size(), number).ptr;
    const auto length = static_cast<std::size_t>(end - written.data());
    const std::size_t sign = number < 0 ? 1 : 0;
    const auto wanted = static_cast<std::size_t>(std::max(digits, 0));
    text.append(written.data(), sign);
    if (wanted > length)
        text.append(wanted - length, '0');
    text.append(written.data() + sign, length - sign);
}

std::string storedText(const DesignParameter& parameter, const QString& text)
{
    switch (parameter.value) {
    case DesignValue::Distance:
    case DesignValue::Coordinate:
        return allDigits(text.trimmed().toDouble());
    case DesignValue::Angle:
        return azimuthText(text.trimmed().toDouble());
    default:
        return std::to_string(text.trimmed().toLongLong());
    }
}
