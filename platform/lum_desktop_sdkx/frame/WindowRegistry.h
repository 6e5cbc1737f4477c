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

/// The open windows in the docks and the status bar of the main frame.
class WindowRegistry final : public IWindowRegistry
{
public:
    explicit WindowRegistry(IDesktopHost* host) : m_host(host) {}

    [[nodiscard]] IWindow* find(const QString& name) const override;
    bool activate(const QString& name) override;
    bool reveal(const QString& name, const QStringList& uncovered) override;
    bool close(const QString& name) override;
    IWindow* open(const QString& className, const IDictionary& parameters) override;

    /// Sets the frame's docks and status bar. They must live until `clear` was called.
    void attach(ads::CDockManager* docks, QStatusBar* statusBar);

    /// Opens a window of the layout.
    /// \returns null, and a line in the log, when its class is not registered
    IWindow* openWindow(const FrameLayout::Window& entry);

    /// Remembers the windows that are open now and their arrangement as the default.
    void rememberDefaultLayout();
    /// Moves the windows back to the default arrangement.
    void resetLayout();
    /// Gives the docks the widths and heights that the layout wants.
    void applySizes();

    /// The arrangement of the docks.
    [[nodiscard]] QByteArray saveState() const;
    /// \returns false, and changes nothing, for a state of another set of default windows
    bool restoreState(const QByteArray& state);

    /// The actions that show and hide the windows in docks, in the order in which they were opened.
    [[nodiscard]] std::vector<QAction*> toggleActions() const;

    /// Deletes every window.
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
    /// Makes the central windows grow and shrink with the frame. The others keep their sizes.
    void favourCenter();

    IDesktopHost* m_host; // owns the registry
    ads::CDockManager* m_docks = nullptr;
    QStatusBar* m_statusBar = nullptr;
    std::vector<Entry> m_entries;
    QByteArray m_defaultState;
    int m_stateVersion = 0; ///< another for another set of default windows
};
