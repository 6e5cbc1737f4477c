#include "lum_desktop_sdkx/CommandExecuterxBase.h"

#include "basalt_utilities/KeyList.h"

CommandExecuterxBase::CommandExecuterxBase(const char* config, IDesktopHost* host) : m_host(*host)
{
    if (config != nullptr)
        csa_to_dictionary(m_parameters, config);
}
