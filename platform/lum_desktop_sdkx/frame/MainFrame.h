#pragma once

#include "lum_desktop_sdkx/ComponentKinds.h"
#include "lum_desktop_sdkx/DesktopDocument.h"
#include "lum_desktop_sdkx/frame/FrameMenus.h"
#include "lum_desktop_sdkx/IMainFrame.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QMainWindow>
#include <QStringList>

#include <memory>
#include <vector>

class DesktopHost;
class StatusText;
struct FrameLayout;
struct FrameState;

namespace ads {
class CDockManager;
class CFloatingDockContainer;
} // namespace ads

/// The main window: menus, tool bars, docks, status bar and assistants by a layout. It remembers
/// how the user has arranged it.
class MainFrame final : public QMainWindow, public IMainFrame, public IEventHandler
{
    Q_OBJECT

public:
    MainFrame(DesktopHost& host, const FrameLayout& layout);
    ~MainFrame() override;

    void setTitle(const QString& title) override;
    void setDocument(const DesktopDocument& document) override;
    void tell(const QString& sentence) override;
    /// Shows the frame in the arrangement of the last session.
    void show() override;

    /// Gives the frame, tool bars and windows the sizes and places of the first start.
    void resetArrangement();

    /// Hands a file to the assistants until one has opened it.
    /// \returns false when none has
    bool openFile(const QString& path);

    /// The same for several, one after the other, and says so when none has opened one. While a
    /// dialog is open the files wait for its end.
    void openWhenFree(const QStringList& paths);

    /// Raises the frame above other programs, also when it is minimised, with an open dialog on
    /// top.
    void comeToFront();

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

Q_SIGNALS:
    /// Sent once, after the window was painted for the first time.
    void firstShown();

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool event(QEvent* event) override;

private:
    void showTitle();
    void makeAssistants(const FrameLayout& layout);
    void restoreFrame(const FrameState& state);
    /// The size of the first start.
    void fillScreen();
    void saveArrangement();
    void openWaitingFiles();
    [[nodiscard]] bool canOpen(const QString& path) const;
    /// The paths of dragged files; none unless all of them can be opened.
    [[nodiscard]] QStringList droppedFiles(const QDropEvent& event) const;
    /// Makes the frame's shortcuts work in a window that has left the frame.
    void adoptFloating(ads::CFloatingDockContainer* window);

    DesktopHost& m_host; // outlives the frame
    ads::CDockManager* m_docks;
    StatusText* m_statusText;
    FrameMenus m_menus;
    std::vector<IGuiAssistantFactory::Pointer> m_assistants;
    QString m_title;
    DesktopDocument m_document;
    QByteArray m_defaultToolBars;
    QStringList m_waitingFiles; ///< to be opened when no dialog is open any more
    bool m_opensFiles = false;
    EventSubscription m_subscription;
    bool m_wasPainted = false;
};
