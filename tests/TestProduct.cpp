// Part of every test: folders of the user and of the configuration are those of the program.

#include "basalt_utilities/Product.h"

[[maybe_unused]] static const bool kIsNamed = [] {
    basalt::setProduct({"Tarvona", "Skyquill", "DataProcess5"});
    return true;
}();
