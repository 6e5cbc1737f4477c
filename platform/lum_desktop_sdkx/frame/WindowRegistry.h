#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/frame/FrameLayout.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"

#include <QByteArray>

#include <vector>

class QAction;
class QStatusBar;

namespace ads {
class CDockManager;
class CDockWidget;
} // namespace ads

/// The open windows, in the docks and the status bar of the main frame.
class WindowRegistry final : public IWindowRegistry
{
public:
    explicit WindowRegistry(IDesktopHost* host) : m_host(host) {}

    [[nodiscard]] IWindow* find(const QString& name) const override;
    bool activate(const QString& name) override;
    IWindow* open(const QString& className, const IDictionary& parameters) override;

    /// The frame's docks and status bar; they outlive `clear`.
    void attach(ads::CDockManager* docks, QStatusBar* statusBar);

    /// Opens a window of the layout.
    /// \returns null, and a line in the log, when its class is not registered
    IWindow* openWindow(const FrameLayout::Window& entry);

    /// Remembers the present windows and their arrangement as the default.
    void rememberDefaultLayout();
    /// Puts the windows back to that arrangement.
    void resetLayout();
    /// Gives the docks the widths and heights of the layout.
    void applySizes();

    /// The arrangement of the docks, and whether it could be brought back: one that was saved with
    /// another set of default windows is refused.
    [[nodiscard]] QByteArray saveState() const;
    bool restoreState(const QByteArray& state);

    /// Actions that show and hide the windows in docks, in the order of opening.
    [[nodiscard]] std::vector<QAction*> toggleActions() const;

    /// Ends every window.
    void clear();

private:
    struct Entry
    {
        FrameLayout::Window layout;
        IWindowFactory::Pointer window;
        ads::CDockWidget* dock; ///< null in the status bar
    };

    [[nodiscard]] const Entry* entry(const QString& name) const;
    ads::CDockWidget* makeDock(const FrameLayout::Window& layout, IWindow& window);
    void placeDock(ads::CDockWidget* dock, const FrameLayout::Window& layout);
    [[nodiscard]] const Entry* lastIn(FrameLayout::Area area) const;
    /// Lets the central windows take what the frame gains or loses; the others keep their sizes.
    void favourCenter();

    IDesktopHost* m_host; // owns the registry
    ads::CDockManager* m_docks = nullptr;
    QStatusBar* m_statusBar = nullptr;
    std::vector<Entry> m_entries;
    QByteArray m_defaultState;
    int m_stateVersion = 0; ///< tells one set of default windows from another
};
