#include "lum_desktop_sdkx/ComponentKinds.h"

#include "lum_desktop_sdkx/ICommandExecuterx.h"
#include "lum_desktop_sdkx/IGuiAssistant.h"
#include "lum_desktop_sdkx/ILayerViewer.h"
#include "lum_desktop_sdkx/IReactor.h"
#include "lum_desktop_sdkx/ISystemSettings.h"
#include "lum_desktop_sdkx/IWindow.h"

namespace {

ISystemSettings* settingsInUse = nullptr;

void forget(const void* /*component*/) {}

void forget(const ISystemSettings* settings)
{
    if (settings == settingsInUse)
        settingsInUse = nullptr;
}

} // namespace

// NOLINTBEGIN(bugprone-macro-parentheses): a type cannot stand in parentheses
#define LUM_COMPONENT_KIND(Kind)                                                                   \
    Kind##Factory& extensible_factory_##Kind()                                                     \
    {                                                                                              \
        static Kind##Factory factory(#Kind);                                                       \
        return factory;                                                                            \
    }                                                                                              \
    bool extensible_factory_register_##Kind(const char* name, const char* caption,                 \
                                            Kind##Factory::Create create,                          \
                                            Kind##Factory::Destroy destroy)                        \
    {                                                                                              \
        return extensible_factory_##Kind().add(name, caption, create, destroy);                    \
    }                                                                                              \
    void extensible_factory_release_##Kind(Kind* component)                                        \
    {                                                                                              \
        forget(component);                                                                         \
        extensible_factory_##Kind().release(component);                                            \
    }

// NOLINTEND(bugprone-macro-parentheses)

LUM_COMPONENT_KIND(IWindow)
LUM_COMPONENT_KIND(ILayerViewer)
LUM_COMPONENT_KIND(IReactor)
LUM_COMPONENT_KIND(ICommandExecuterx)
LUM_COMPONENT_KIND(IGuiAssistant)
LUM_COMPONENT_KIND(ISystemSettings)

IWindow* extensible_factory_get_IWindow(const char* name, const char* config, IDesktopHost* host)
{
    return extensible_factory_IWindow().get(name, config, host);
}

ILayerViewer* extensible_factory_get_ILayerViewer(const char* name, const char* config,
                                                  IDesktopHost* host)
{
    return extensible_factory_ILayerViewer().get(name, config, host);
}

IReactor* extensible_factory_get_IReactor(const char* name, const char* config, IMapWindow* map)
{
    return extensible_factory_IReactor().get(name, config, map);
}

ICommandExecuterx* extensible_factory_get_ICommandExecuterx(const char* name, const char* config,
                                                            IDesktopHost* host)
{
    return extensible_factory_ICommandExecuterx().get(name, config, host);
}

IGuiAssistant* extensible_factory_get_IGuiAssistant(const char* name, const char* config,
                                                    IDesktopHost* host)
{
    return extensible_factory_IGuiAssistant().get(name, config, host);
}

ISystemSettings* extensible_factory_get_ISystemSettings(const char* name, const char* config)
{
    if (settingsInUse == nullptr)
        settingsInUse = extensible_factory_ISystemSettings().get(name, config);
    return settingsInUse;
}

ISystemSettings* pSystemSettings()
{
    return settingsInUse;
}
