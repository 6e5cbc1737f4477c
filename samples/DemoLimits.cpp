#include "samples/DemoLimits.h"

#include <array>

namespace demo {

namespace {

// clang-format off
constexpr std::array kLimits{
    DemoLimit{"design_ver_diff", "20"},
    DemoLimit{"solution_type_min", "4"}, // fixed
    DemoLimit{"age_of_diff_max", "10"},
    DemoLimit{"epoch_num_min", "5"},
    DemoLimit{"occupation_min", "4"},
    DemoLimit{"rms_max", "0.6"},
    DemoLimit{"neighbour_height_max", "8"}, // the ground itself differs by less
};
// clang-format on

} // namespace

std::span<const DemoLimit> demoLimits()
{
    return kLimits;
}

} // namespace demo
