#pragma once

#include "basalt_utilities/IDictionary.h"

/// The property by which a layer tells that it shows a picture of the ground, such as an overlay
/// image or a base map. While a visible layer does, the map lays a halo in the colour of its paper
/// under all that the layers above draw.
namespace layerpicture {

inline constexpr const char* kIsShown = "shows_picture"; ///< "1" while it shows one; "0"

/// For a layer, on the GUI thread. The map reads the property when it asks for a paint, after
/// `preparePaint`; a change needs a redraw to be seen.
inline void setShown(IDictionary& properties, bool isShown)
{
    properties.set(kIsShown, isShown ? "1" : "0");
}

[[nodiscard]] inline bool isShown(const IDictionary& properties)
{
    return properties.integer(kIsShown) != 0;
}

} // namespace layerpicture
