#include "lum_desktop_sdkx/CommandExecuterxBase.h"

#include "lum_desktop_sdkx/ComponentParameters.h"

CommandExecuterxBase::CommandExecuterxBase(const char* config, IDesktopHost* host)
    : m_host(*host), m_parameters(desktop::componentParameters(config))
{
}
