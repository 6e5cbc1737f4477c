#pragma once

#include "lum_desktop_sdkx/frame/CommandList.h"
#include "lum_desktop_sdkx/frame/CoordTransformHelper.h"
#include "lum_desktop_sdkx/frame/WindowRegistry.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/events/EventManager.h"

class IMainFrame;

/// What the components of the desktop share. It is made before the first of them.
class DesktopHost final : public IDesktopHost
{
public:
    [[nodiscard]] IEventManager& eventManager() override { return m_eventManager; }
    [[nodiscard]] WindowRegistry& windows() override { return m_windows; }
    [[nodiscard]] CommandList& commands() override { return m_commands; }
    [[nodiscard]] ICoordTransformHelper& coordTransformHelper() override { return m_helper; }
    [[nodiscard]] QWidget* dialogParent() override { return m_dialogParent; }
    void setDocument(const DesktopDocument& document) override;
    [[nodiscard]] bool hasDocument() const override { return m_hasDocument; }
    void tell(const QString& sentence) override;

    /// Both parameters are the same window; null while there is none.
    void setFrame(IMainFrame* frame, QWidget* dialogParent);

private:
    EventManager m_eventManager;
    CoordTransformHelper m_helper;
    WindowRegistry m_windows{this};
    CommandList m_commands;
    IMainFrame* m_frame = nullptr;
    QWidget* m_dialogParent = nullptr;
    bool m_hasDocument = false;
};
