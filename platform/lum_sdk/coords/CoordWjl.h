#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_sdk/coords/CoordResult.h"
#include "lum_sdk/coords/ICoordTransform.h"

#include <memory>
#include <string>

namespace lum {
class CoordChain;
}

/// The coordinate service on PROJ, registered as "coord_wjl". Codes are those of
/// `lum::CoordResult`.
///
/// Direction 1 goes through the first dictionary of `initialise`, direction 2 through the second;
/// a fault of one leaves the other usable.
class CoordWjl final : public ICoordTransform
{
public:
    CoordWjl();
    ~CoordWjl() override;

    std::int32_t initialise(const IDictionary& source, const IDictionary& target) override;
    [[nodiscard]] const IDictionary& parameters() const override { return m_parameters; }
    [[nodiscard]] bool isValid(std::int32_t direction) const override;
    std::int32_t transform(std::int32_t direction, std::int32_t inputKind, std::int32_t outputKind,
                           std::int32_t angleFormat, double first, double second, double third,
                           double* outFirst, double* outSecond, double* outThird) override;
    [[nodiscard]] const char* message(std::int32_t code) const override;
    std::size_t transformMany(std::int32_t direction, std::int32_t inputKind,
                              std::int32_t outputKind, std::int32_t angleFormat,
                              std::span<const CoordTriple> in, std::span<CoordTriple> out,
                              std::span<std::int32_t> codes) override;

private:
    [[nodiscard]] const lum::CoordChain* chain(std::int32_t direction) const;
    /// The fault of the call as a whole: an unknown code, or a system that cannot be used.
    [[nodiscard]] lum::CoordResult judgeCall(std::int32_t direction, std::int32_t inputKind,
                                             std::int32_t outputKind,
                                             std::int32_t angleFormat) const;

    std::unique_ptr<lum::CoordChain> m_source;
    std::unique_ptr<lum::CoordChain> m_target;
    basalt::Dictionary m_parameters;
    mutable std::string m_message;
};
