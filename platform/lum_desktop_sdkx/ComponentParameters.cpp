#include "lum_desktop_sdkx/ComponentParameters.h"

#include "basalt_utilities/KeyList.h"

namespace desktop {

basalt::Dictionary componentParameters(const char* config)
{
    basalt::Dictionary parameters;
    if (config != nullptr)
        csa_to_dictionary(parameters, config);
    return parameters;
}

} // namespace desktop
