#pragma once

#include "basalt_utilities/Product.h"

inline constexpr const char* kOrganisation = "Tarvona";
inline constexpr const char* kProductName = "Skyquill";

/// Tells the platform whose program it runs in; the first line of every `main`.
inline void nameProduct()
{
    basalt::setProduct({kOrganisation, kProductName, "DataProcess5"});
}
