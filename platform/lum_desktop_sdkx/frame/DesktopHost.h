#pragma once

#include "lum_desktop_sdkx/frame/CommandList.h"
#include "lum_desktop_sdkx/frame/CoordTransformHelper.h"
#include "lum_desktop_sdkx/frame/WindowRegistry.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/EventManager.h"

/// The host of the desktop's components: what they share, made before the first of them.
class DesktopHost final : public IDesktopHost
{
public:
    [[nodiscard]] IEventManager& eventManager() override { return m_eventManager; }
    [[nodiscard]] WindowRegistry& windows() override { return m_windows; }
    [[nodiscard]] CommandList& commands() override { return m_commands; }
    [[nodiscard]] ICoordTransformHelper& coordTransformHelper() override { return m_helper; }
    [[nodiscard]] QWidget* dialogParent() override { return m_dialogParent; }

    /// Null while there is no main frame.
    void setDialogParent(QWidget* parent) { m_dialogParent = parent; }

private:
    EventManager m_eventManager;
    CoordTransformHelper m_helper;
    WindowRegistry m_windows{this};
    CommandList m_commands;
    QWidget* m_dialogParent = nullptr;
};
