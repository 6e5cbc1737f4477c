#pragma once

#include "lum_sdk/ComponentFactory.h"

class ICommandExecuterx;
class IDesktopHost;
class IGuiAssistant;
class ILayerViewer;
class IMapWindow;
class IReactor;
class ISystemSettings;
class IWindow;

// The component kinds of the desktop. Each has a factory and three C-style operations on it:
//
//   bool  extensible_factory_register_KIND(name, caption, create, destroy)
//   KIND* extensible_factory_get_KIND(name, configuration text[, context])
//   void  extensible_factory_release_KIND(component)
//
// A name that is taken is refused and logged; an unknown one comes back as null and is logged.

#define LUM_COMPONENT_KIND(Kind, ...)                                                              \
    using Kind##Factory = ComponentFactory<Kind, const char * __VA_OPT__(, ) __VA_ARGS__>;         \
    [[nodiscard]] Kind##Factory& extensible_factory_##Kind();                                      \
    bool extensible_factory_register_##Kind(const char* name, const char* caption,                 \
                                            Kind##Factory::Create create,                          \
                                            Kind##Factory::Destroy destroy);                       \
    void extensible_factory_release_##Kind(Kind* component);

LUM_COMPONENT_KIND(IWindow, IDesktopHost*)
LUM_COMPONENT_KIND(ILayerViewer, IDesktopHost*)
LUM_COMPONENT_KIND(IReactor, IMapWindow*)
LUM_COMPONENT_KIND(ICommandExecuterx, IDesktopHost*)
LUM_COMPONENT_KIND(IGuiAssistant, IDesktopHost*)
LUM_COMPONENT_KIND(ISystemSettings)

#undef LUM_COMPONENT_KIND

[[nodiscard]] IWindow* extensible_factory_get_IWindow(const char* name, const char* config,
                                                      IDesktopHost* host);
[[nodiscard]] ILayerViewer*
extensible_factory_get_ILayerViewer(const char* name, const char* config, IDesktopHost* host);
[[nodiscard]] IReactor* extensible_factory_get_IReactor(const char* name, const char* config,
                                                        IMapWindow* map);
[[nodiscard]] ICommandExecuterx*
extensible_factory_get_ICommandExecuterx(const char* name, const char* config, IDesktopHost* host);
[[nodiscard]] IGuiAssistant*
extensible_factory_get_IGuiAssistant(const char* name, const char* config, IDesktopHost* host);
/// The settings object is one for the process: the same each time.
[[nodiscard]] ISystemSettings* extensible_factory_get_ISystemSettings(const char* name,
                                                                      const char* config);

namespace desktop {

/// Create and destroy functions of a class, for the register operations:
/// `Maker<IWindow, MapWindow, IDesktopHost*>::create`.
template <class Interface, class Class, class... Context>
struct Maker
{
    static Interface* create(const char* config, Context... context)
    {
        return std::make_unique<Class>(config, context...).release();
    }
    static void destroy(Interface* component) { std::default_delete<Interface>()(component); }
};

} // namespace desktop
