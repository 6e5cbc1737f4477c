#include "lum_sdk/coords/CoordWjl.h"

#include "lum_sdk/coords/Angles.h"
#include "lum_sdk/coords/CoordChain.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

using lum::AngleFormat;
using lum::CoordResult;

namespace {

constexpr std::size_t kBlock = 256; // points at a time, on the stack

CoordKind kindOf(std::int32_t code)
{
    const auto kind = static_cast<CoordKind>(code);
    return kind == CoordKind::PlaneInput ? CoordKind::Plane : kind;
}

struct Block
{
    std::span<PJ_COORD> points;
    std::span<std::int32_t> codes;
};

bool isGood(const PJ_COORD& point, CoordKind kind)
{
    return std::isfinite(point.xyz.x) && std::isfinite(point.xyz.y) && std::isfinite(point.xyz.z) &&
           (kind != CoordKind::Geodetic || std::abs(point.lp.phi) <= std::numbers::pi / 2 + 1e-12);
}

void readIn(std::span<const CoordTriple> in, CoordKind kind, AngleFormat format, const Block& to)
{
    const bool isPacked = format == AngleFormat::DegreesMinutesSeconds;
    const double unit = lum::toRadians(1, format); // the other formats need only a factor
    const auto radians = [=](double angle) {
        return isPacked ? lum::toRadians(angle, format) : angle * unit;
    };
    for (std::size_t i = 0; i < in.size(); ++i) {
        const CoordTriple& from = in[i];
        PJ_COORD& point = to.points[i];
        if (kind == CoordKind::Geodetic)
            point = {{radians(from.second), radians(from.first), from.third, HUGE_VAL}};
        else if (kind == CoordKind::Plane)
            point = {{from.second, from.first, from.third, HUGE_VAL}};
        else
            point = {{from.first, from.second, from.third, HUGE_VAL}};
        to.codes[i] =
            isGood(point, kind) ? 0 : static_cast<std::int32_t>(CoordResult::NotACoordinate);
    }
}

void convert(const lum::CoordChain& chain, CoordKind from, CoordKind to, const Block& block)
{
    if (from == to)
        return;
    if (from == CoordKind::Plane)
        chain.gridToGeodetic(block.points, block.codes);
    else if (from == CoordKind::Geocentric)
        chain.geocentricToGeodetic(block.points, block.codes);
    if (to == CoordKind::Plane)
        chain.geodeticToGrid(block.points, block.codes);
    else if (to == CoordKind::Geocentric)
        chain.geodeticToGeocentric(block.points, block.codes);
}

std::size_t writeOut(const Block& from, CoordKind kind, AngleFormat format,
                     std::span<CoordTriple> out)
{
    std::size_t failures = 0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const PJ_XYZ& point = from.points[i].xyz;
        if (from.codes[i] != 0)
            ++failures;
        else if (kind == CoordKind::Geodetic)
            out[i] = {lum::fromRadians(point.y, format), lum::fromRadians(point.x, format),
                      point.z};
        else if (kind == CoordKind::Plane)
            out[i] = {point.y, point.x, point.z};
        else
            out[i] = {point.x, point.y, point.z};
    }
    return failures;
}

} // namespace

CoordWjl::CoordWjl() = default;
CoordWjl::~CoordWjl() = default;

std::int32_t CoordWjl::initialise(const IDictionary& source, const IDictionary& target)
{
    m_source = std::make_unique<lum::CoordChain>(source);
    m_target = std::make_unique<lum::CoordChain>(target);
    if (&target != &m_parameters) {
        m_parameters.clear();
        dictionary_copy(target, m_parameters);
    }
    const auto& fault = m_source->fault() ? m_source->fault() : m_target->fault();
    return static_cast<std::int32_t>(fault.code);
}

bool CoordWjl::isValid(std::int32_t direction) const
{
    const lum::CoordChain* used = chain(direction);
    return used != nullptr && !used->fault();
}

std::int32_t CoordWjl::transform(std::int32_t direction, std::int32_t inputKind,
                                 std::int32_t outputKind, std::int32_t angleFormat, double first,
                                 double second, double third, double* outFirst, double* outSecond,
                                 double* outThird)
{
    const CoordTriple in{first, second, third};
    CoordTriple out;
    std::int32_t code = 0;
    transformMany(direction, inputKind, outputKind, angleFormat, {&in, 1}, {&out, 1}, {&code, 1});
    if (code == 0) {
        *outFirst = out.first;
        *outSecond = out.second;
        *outThird = out.third;
    }
    return code;
}

std::size_t CoordWjl::transformMany(std::int32_t direction, std::int32_t inputKind,
                                    std::int32_t outputKind, std::int32_t angleFormat,
                                    std::span<const CoordTriple> in, std::span<CoordTriple> out,
                                    std::span<std::int32_t> codes)
{
    const CoordResult fault = judgeCall(direction, inputKind, outputKind, angleFormat);
    if (fault != CoordResult::Success) {
        std::fill(codes.begin(), codes.end(), static_cast<std::int32_t>(fault));
        return in.size();
    }
    const auto format = static_cast<AngleFormat>(angleFormat);
    std::array<PJ_COORD, kBlock> points; // NOLINT(cppcoreguidelines-pro-type-member-init)
    std::size_t failures = 0;
    for (std::size_t start = 0; start < in.size(); start += kBlock) {
        const std::size_t count = std::min(kBlock, in.size() - start);
        const Block block{std::span(points).first(count), codes.subspan(start, count)};
        readIn(in.subspan(start, count), kindOf(inputKind), format, block);
        convert(*chain(direction), kindOf(inputKind), kindOf(outputKind), block);
        failures += writeOut(block, kindOf(outputKind), format, out.subspan(start, count));
    }
    return failures;
}

const char* CoordWjl::message(std::int32_t code) const
{
    lum::CoordFault fault{static_cast<CoordResult>(code), {}};
    for (const auto* chain : {m_source.get(), m_target.get()}) {
        if (chain != nullptr && chain->fault().code == fault.code && fault.detail.empty())
            fault = chain->fault();
    }
    m_message = lum::describe(fault);
    return m_message.c_str();
}

const lum::CoordChain* CoordWjl::chain(std::int32_t direction) const
{
    switch (static_cast<CoordDirection>(direction)) {
    case CoordDirection::Source:
        return m_source.get();
    case CoordDirection::Target:
        return m_target.get();
    }
    return nullptr;
}

CoordResult CoordWjl::judgeCall(std::int32_t direction, std::int32_t inputKind,
                                std::int32_t outputKind, std::int32_t angleFormat) const
{
    if (direction != 1 && direction != 2)
        return CoordResult::UnknownDirection;
    if (inputKind < 1 || inputKind > 4)
        return CoordResult::UnknownInputKind;
    if (outputKind < 1 || outputKind > 4)
        return CoordResult::UnknownOutputKind;
    if (!lum::isAngleFormat(angleFormat))
        return CoordResult::UnknownAngleFormat;
    const lum::CoordChain* used = chain(direction);
    return used == nullptr ? CoordResult::NotInitialised : used->fault().code;
}
