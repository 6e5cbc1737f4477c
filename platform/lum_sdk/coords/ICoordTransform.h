#pragma once

#include "lum_sdk/ComponentFactory.h"

#include <cstddef>
#include <cstdint>
#include <span>

class IDictionary;

/// The kinds of coordinates that a transformation takes and gives.
enum class CoordKind : std::int32_t
{
    Geodetic = 1,   ///< WGS 84 latitude, longitude, ellipsoidal height in metres
    Plane = 2,      ///< north, east, height in the coordinate system
    Geocentric = 3, ///< WGS 84 X, Y, Z in metres
    PlaneInput = 4, ///< the same as `Plane`
};

/// Which of the two coordinate systems of an object a transformation goes through.
enum class CoordDirection : std::int32_t
{
    Source = 1, ///< the first dictionary given to `initialise`
    Target = 2, ///< the second one
};

/// Three coordinates in the order of their kind.
struct CoordTriple
{
    double first = 0;
    double second = 0;
    double third = 0;
};

/// Transforms coordinates as one or two parameter dictionaries describe them.
///
/// A project's own object is initialised with its dictionary for both systems. Angles are in one of
/// the formats of `AngleFormat`. An object serves one thread at a time.
class ICoordTransform
{
public:
    virtual ~ICoordTransform() = default;

    /// Takes over copies of both dictionaries.
    /// \returns 0, or the code of the first fault; the system without a fault can be used
    virtual std::int32_t initialise(const IDictionary& source, const IDictionary& target) = 0;

    /// The parameters of the target system; without entries before `initialise`.
    [[nodiscard]] virtual const IDictionary& parameters() const = 0;

    /// Whether points can be transformed in this direction.
    [[nodiscard]] virtual bool isValid(std::int32_t direction) const = 0;

    /// Transforms one point; kinds and direction are the numbers of the enumerators above.
    /// \returns 0, or a code for `message`; the outputs are left alone then
    virtual std::int32_t transform(std::int32_t direction, std::int32_t inputKind,
                                   std::int32_t outputKind, std::int32_t angleFormat, double first,
                                   double second, double third, double* outFirst, double* outSecond,
                                   double* outThird) = 0;

    /// What a result code means, a whole sentence in the user's language, 8-bit text. Valid until
    /// the next call of this operation.
    [[nodiscard]] virtual const char* message(std::int32_t code) const = 0;

    /// Transforms many points, much faster than one by one; `in` and `out` may be the same.
    /// \param codes  one result code a point; as long as `in`, as `out` is
    /// \returns the number of points that failed; their outputs are left alone
    virtual std::size_t transformMany(std::int32_t direction, std::int32_t inputKind,
                                      std::int32_t outputKind, std::int32_t angleFormat,
                                      std::span<const CoordTriple> in, std::span<CoordTriple> out,
                                      std::span<std::int32_t> codes) = 0;
};

using ICoordTransformFactory = ComponentFactory<ICoordTransform, const char*>;

/// The C-style operations of this kind of component; `config` is not used and may be null.
[[nodiscard]] ICoordTransformFactory& extensible_factory_ICoordTransform();
bool extensible_factory_register_ICoordTransform(const char* name, const char* caption,
                                                 ICoordTransformFactory::Create create,
                                                 ICoordTransformFactory::Destroy destroy);
[[nodiscard]] ICoordTransform* extensible_factory_get_ICoordTransform(const char* name,
                                                                      const char* config);
void extensible_factory_release_ICoordTransform(ICoordTransform* component);

/// Registers "coord_wjl"; a second call does nothing.
void registerCoordComponents();
