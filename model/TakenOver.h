#pragma once

#include "model/PointLines.h"

#include <type_traits>

/// What is needed to take an import back.
template <class Points>
struct TakenOver
{
    bool wasEmpty = false; ///< there was no point before; then the rest is empty
    PointNames names;      ///< of all points that have come
    Points replaced;       ///< the points that were there under these names
};

/// Adds all points of `staged`, over those that are there.
/// \param undo filled when it is not null
/// \returns how many points were replaced
template <class Points>
std::size_t takeOver(Points& points, std::type_identity_t<Points>&& staged, TakenOver<Points>* undo)
{
    if (undo == nullptr)
        return points.merge(std::move(staged));
    undo->wasEmpty = points.empty();
    if (!undo->wasEmpty)
        undo->names = staged.names();
    const std::size_t replaced = points.takeOver(staged);
    undo->replaced = std::move(staged);
    return replaced;
}
