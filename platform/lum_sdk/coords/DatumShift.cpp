#include "lum_sdk/coords/DatumShift.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/Numbers.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace lum {

namespace {

using Triple = std::array<double, 3>;

constexpr double kArcSecond = std::numbers::pi / (180.0 * 3600.0);

Triple numbersOf(const IDictionary& parameters, const std::array<const char*, 3>& keys,
                 CoordFault& fault)
{
    Triple values{};
    for (std::size_t i = 0; i < 3; ++i) {
        values[i] = parameters.number(keys[i]);
        if (!std::isfinite(values[i]))
            fault = {CoordResult::NotANumber, keys[i]};
    }
    return values;
}

bool isZero(const Triple& values)
{
    return std::all_of(values.begin(), values.end(), [](double v) { return v == 0; });
}

} // namespace

DatumShift::DatumShift(DatumShiftKind kind, const Triple& translationM, const Triple& rotationsSec,
                       double scalePpm, const Triple& pivotM)
{
    if (kind == DatumShiftKind::None)
        return;
    m_translationM = translationM;
    m_rotationSec = rotationsSec;
    m_scalePpm = scalePpm;
    if (kind == DatumShiftKind::PositionVector) {
        for (double& angle : m_rotationSec)
            angle = -angle;
    }
    // X' = T + P + (1 + s) R (X - P): what does not depend on X is the translation
    const Triple pivot = turned(pivotM);
    for (std::size_t i = 0; i < 3; ++i)
        m_translationM[i] += pivotM[i] - (1 + m_scalePpm * 1e-6) * pivot[i];
}

DatumShift DatumShift::fromDictionary(const IDictionary& parameters, CoordFault& fault)
{
    const int code = parameters.integer("_7type");
    if (code < 0 || code > 3) {
        fault = {CoordResult::UnknownDatumShift, std::to_string(code)};
        return {};
    }
    const auto kind = static_cast<DatumShiftKind>(code);
    const Triple translation = numbersOf(parameters, {"_7dx", "_7dy", "_7dz"}, fault);
    const Triple rotation = numbersOf(parameters, {"_7rx", "_7ry", "_7rz"}, fault);
    const Triple pivot = numbersOf(parameters, {"_7px", "_7py", "_7pz"}, fault);
    const double scale = parameters.number("_7ppm");
    if (!std::isfinite(scale))
        fault = {CoordResult::NotANumber, "_7ppm"};
    const bool needsPivot = !isZero(rotation) || scale != 0;
    if (kind == DatumShiftKind::MolodenskyBadekas && needsPivot && isZero(pivot))
        fault = {CoordResult::DatumShiftPivot, {}};
    if (fault)
        return {};
    const bool hasPivot = kind == DatumShiftKind::MolodenskyBadekas;
    return DatumShift(kind, translation, rotation, scale, hasPivot ? pivot : Triple{});
}

bool DatumShift::isNone() const
{
    return isZero(m_translationM) && isZero(m_rotationSec) && m_scalePpm == 0;
}

Triple DatumShift::turned(const Triple& v) const
{
    const double rx = m_rotationSec[0] * kArcSecond;
    const double ry = m_rotationSec[1] * kArcSecond;
    const double rz = m_rotationSec[2] * kArcSecond;
    return {v[0] + rz * v[1] - ry * v[2], v[1] - rz * v[0] + rx * v[2],
            v[2] + ry * v[0] - rx * v[1]};
}

DatumShift DatumShift::inverse() const
{
    DatumShift back;
    for (std::size_t i = 0; i < 3; ++i)
        back.m_rotationSec[i] = -m_rotationSec[i];
    const double scale = 1 / (1 + m_scalePpm * 1e-6);
    back.m_scalePpm = -m_scalePpm * scale;
    const Triple translation = back.turned(m_translationM);
    for (std::size_t i = 0; i < 3; ++i)
        back.m_translationM[i] = -scale * translation[i];
    return back;
}

void DatumShift::toDictionary(IDictionary& parameters) const
{
    const auto kind = isNone() ? DatumShiftKind::None : DatumShiftKind::CoordinateFrame;
    dic_set_value(parameters, "_7type", static_cast<int>(kind));
    const std::array<const char*, 3> shifts{"_7dx", "_7dy", "_7dz"};
    const std::array<const char*, 3> angles{"_7rx", "_7ry", "_7rz"};
    for (std::size_t i = 0; i < 3; ++i) {
        dic_set_value(parameters, shifts[i], m_translationM[i] + 0.0); // no "-0"
        dic_set_value(parameters, angles[i], m_rotationSec[i] + 0.0);
    }
    dic_set_value(parameters, "_7ppm", m_scalePpm + 0.0);
}

std::string DatumShift::projStep() const
{
    using basalt::formatShortest;
    const double scale = 1 + m_scalePpm * 1e-6;
    const std::array<const char*, 3> offsets{"xoff", "yoff", "zoff"};
    std::string step = "+proj=affine";
    for (std::size_t i = 0; i < 3; ++i)
        step += std::string(" +") + offsets[i] + '=' + formatShortest(m_translationM[i]);
    for (std::size_t column = 0; column < 3; ++column) {
        Triple axis{};
        axis[column] = scale;
        const Triple turnedAxis = turned(axis);
        for (std::size_t row = 0; row < 3; ++row)
            step += " +s" + std::to_string(row + 1) + std::to_string(column + 1) + '=' +
                    formatShortest(turnedAxis[row]);
    }
    return step;
}

} // namespace lum
