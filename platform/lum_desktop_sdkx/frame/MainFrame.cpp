#include "lum_desktop_sdkx/frame/MainFrame.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/controls/OpenEdit.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/dialogs/ScreenFit.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/DockStyle.h"
#include "lum_desktop_sdkx/frame/FrameState.h"
#include "lum_desktop_sdkx/frame/StatusText.h"
#include "lum_desktop_sdkx/IGuiAssistant.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/PlatformEvents.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QStatusBar>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/FloatingDockContainer.h>
#include <qtadvanceddocking/IconProvider.h>
#include <QTimer>

#include <algorithm>

namespace {

constexpr int kLeastLine = 18; // of the status bar
constexpr int kStatusPadding = 8;
constexpr int kDragPollMs = 50;

ads::CDockManager* makeDockManager(QMainWindow* frame)
{
    using ads::CDockManager;
    CDockManager::setConfigFlags(CDockManager::DefaultOpaqueConfig);
    CDockManager::setConfigFlag(CDockManager::AlwaysShowTabs, true);
    CDockManager::setConfigFlag(CDockManager::DockAreaHasCloseButton, false); // each tab has one
    CDockManager::setConfigFlag(CDockManager::DockAreaHasUndockButton, false);
    CDockManager::setConfigFlag(CDockManager::DockAreaHasTabsMenuButton, false);
    CDockManager::setConfigFlag(CDockManager::DockAreaHideDisabledButtons, true);
    CDockManager::setConfigFlag(CDockManager::FocusHighlighting, false);
    auto* const docks = new CDockManager(frame);
    docks->setStyleSheet(QString()); // removes the rules of the library's own sheet
    docks->setStyleSheet(desktop::dockStyle());
    CDockManager::iconProvider().registerCustomIcon(ads::TabCloseIcon, desktop::dockCloseIcon());
    desktop::showDockFocus(*docks);
    return docks;
}

/// Keeps the height of the status bar. If a progress bar, or a text in the taller letters of
/// another script, changed it, the map would get another size, paint anew and tell its progress
/// again.
void fixHeight(QStatusBar& bar)
{
    const QSize text = bar.fontMetrics().size(Qt::TextSingleLine, QStringLiteral("\u00c1g\u6d4b"));
    bar.setFixedHeight(std::max(text.height(), dpi_scaled(kLeastLine)) +
                       dpi_scaled(kStatusPadding));
}

/// Brings a window that has left the frame onto the screen, after the drag that it may have left
/// by.
void settle(QWidget& window)
{
    if (QGuiApplication::mouseButtons() == Qt::NoButton)
        desktop::fitToScreen(window);
    else
        QTimer::singleShot(kDragPollMs, &window, [&window] { settle(window); });
}

/// An assistant that throws keeps the frame open, since it may not have saved.
bool mayClose(IGuiAssistant& assistant)
{
    try {
        return assistant.queryClose() != 0;
    } catch (const std::exception& fault) {
        basalt::logError(std::string("The program stays open: ") + fault.what());
        return false;
    }
}

} // namespace

MainFrame::MainFrame(DesktopHost& host, const FrameLayout& layout)
    : m_host(host), m_docks(makeDockManager(this)), m_statusText(new StatusText(this)),
      m_menus(*this, host),
      m_subscription(*this, lum::eventNames({events::kUpdateSystemStatus, events::kProjectChanged}),
                     host.eventManager())
{
    setObjectName(QStringLiteral("MainFrame"));
    setAcceptDrops(true);
    m_host.setFrame(this, this);
    m_host.windows().attach(m_docks, statusBar());
    fixHeight(*statusBar());
    statusBar()->addWidget(m_statusText, 1); // the tips of menus cover it for a while
    connect(m_docks, &ads::CDockManager::floatingWidgetCreated, this, &MainFrame::adoptFloating);
    makeAssistants(layout);
    m_menus.add(layout);
    for (const FrameLayout::Window& window : layout.windows)
        m_host.windows().openWindow(window);
    for (const auto& assistant : m_assistants)
        assistant->onMapViewCreated();
    for (const auto& assistant : m_assistants)
        assistant->openMainWindows();
    m_host.commands().refresh();
}

MainFrame::~MainFrame()
{
    m_assistants.clear();
    m_host.commands().clear();
    m_host.windows().clear();
    m_host.setFrame(nullptr, nullptr);
}

void MainFrame::setTitle(const QString& title)
{
    m_title = title;
    showTitle();
}

void MainFrame::setDocument(const DesktopDocument& document)
{
    if (document.name != m_document.name)
        tell({});
    m_document = document;
    showTitle();
}

void MainFrame::tell(const QString& sentence)
{
    m_statusText->setText(sentence);
}

bool MainFrame::openFile(const QString& path)
{
    return std::any_of(m_assistants.begin(), m_assistants.end(),
                       [&](const auto& assistant) { return assistant->openFile(path) != 0; });
}

void MainFrame::openWhenFree(const QStringList& paths)
{
    m_waitingFiles += paths;
    openWaitingFiles();
}

void MainFrame::openWaitingFiles()
{
    if (m_opensFiles) // what is opened now has asked something, and was answered
        return;
    const QScopedValueRollback<bool> opening(m_opensFiles, true);
    while (!m_waitingFiles.isEmpty() && QApplication::activeModalWidget() == nullptr) {
        const QString file = m_waitingFiles.takeFirst();
        if (!openFile(file))
            LumMessageBox::warning(this, QCoreApplication::applicationName(),
                                   tr("\"%1\" is not a file that can be opened here.").arg(file));
    }
}

bool MainFrame::canOpen(const QString& path) const
{
    return std::any_of(m_assistants.begin(), m_assistants.end(),
                       [&](const auto& assistant) { return assistant->canOpen(path); });
}

QStringList MainFrame::droppedFiles(const QDropEvent& event) const
{
    QStringList files;
    for (const QUrl& url : event.mimeData()->urls()) {
        if (!url.isLocalFile() || !canOpen(url.toLocalFile()))
            return {};
        files << url.toLocalFile();
    }
    return files;
}

void MainFrame::comeToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    QWidget* const dialog = QApplication::activeModalWidget();
    if (dialog != nullptr)
        dialog->raise();
    (dialog != nullptr ? dialog : this)->activateWindow();
}

void MainFrame::show()
{
    WindowRegistry& windows = m_host.windows();
    const QString map = QStringLiteral("DataMap");
    windows.activate(map); // the assistants may have opened tabs in front of it
    windows.rememberDefaultLayout();
    m_defaultToolBars = saveState();
    const FrameState state = FrameState::load();
    restoreFrame(state);
    const bool wasRestored = windows.restoreState(state.docks);
    QMainWindow::show();
    if (!wasRestored)
        windows.applySizes(); // the docks have no size before the frame is shown
    if (IWindow* const window = windows.find(map))
        window->widget()->setFocus();
}

void MainFrame::resetArrangement()
{
    fillScreen();
    restoreState(m_defaultToolBars);
    m_host.windows().resetLayout();
}

void MainFrame::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    m_host.commands().refresh();
}

void MainFrame::showTitle()
{
    const bool isOpen = !m_document.name.isEmpty();
    QString title = m_title;
    if (isOpen) {
        const QString mark = QStringLiteral("[*]"); // where Qt shows that the window is modified
        QString name = m_document.name;
        name.replace(mark, mark + mark); // as Qt writes a name that holds it
        const QString access =
            m_document.isReadOnly ? QLatin1Char(' ') + tr("[read-only]") : QString();
        title = name + mark + access + QStringLiteral(" - ") + m_title;
    }
    setWindowTitle(title);
    setWindowModified(isOpen && m_document.isChanged);
}

void MainFrame::dragEnterEvent(QDragEnterEvent* event)
{
    if (!droppedFiles(*event).isEmpty())
        event->acceptProposedAction();
}

void MainFrame::dropEvent(QDropEvent* event)
{
    const QStringList files = droppedFiles(*event);
    event->acceptProposedAction();
    // Not at once: the program that the file comes from waits until this returns, and opening may
    // ask the user.
    QTimer::singleShot(0, this, [this, files] { openWhenFree(files); });
}

void MainFrame::closeEvent(QCloseEvent* event)
{
    desktop::enterOpenEdit();
    if (!std::all_of(m_assistants.begin(), m_assistants.end(),
                     [](const auto& assistant) { return mayClose(*assistant); })) {
        event->ignore();
        return;
    }
    saveArrangement();
    event->accept();
    QCoreApplication::quit(); // a floating window must not keep the program running
}

bool MainFrame::event(QEvent* event)
{
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::Paint && !m_wasPainted) {
        m_wasPainted = true;
        QTimer::singleShot(0, this, [this] { // after the children were painted
            desktop::fitToScreen(*this);     // with the frame that it has got
            Q_EMIT firstShown();
        });
    }
    // A zero timer fires when the command that had the dialog open is through with it.
    if (event->type() == QEvent::WindowUnblocked)
        QTimer::singleShot(0, this, &MainFrame::openWaitingFiles);
    return handled;
}

void MainFrame::makeAssistants(const FrameLayout& layout)
{
    for (const QString& name : layout.assistants) {
        auto assistant = extensible_factory_IGuiAssistant().make(name.toStdString(), "", &m_host);
        if (assistant)
            m_assistants.push_back(std::move(assistant));
    }
}

void MainFrame::restoreFrame(const FrameState& state)
{
    if (state.geometry.isEmpty() || !restoreGeometry(state.geometry))
        fillScreen();
    desktop::fitToScreen(*this); // the last session may have had a larger screen
    if (!state.toolBars.isEmpty())
        restoreState(state.toolBars);
}

void MainFrame::fillScreen()
{
    // The size at once, since the docks are given theirs before the window manager has answered; a
    // screen without one is filled as well.
    if (!isMaximized() && !isFullScreen()) {
        resize(desktop::largestSize(*this));
        desktop::fitToScreen(*this);
    }
    setWindowState((windowState() & ~Qt::WindowFullScreen) | Qt::WindowMaximized);
}

void MainFrame::adoptFloating(ads::CFloatingDockContainer* window)
{
    for (QAction* action : findChildren<QAction*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (!action->shortcut().isEmpty())
            window->addAction(action); // its keys work in that window as well
    }
    QTimer::singleShot(0, window, [window] { settle(*window); }); // it has no size and place yet
}

void MainFrame::saveArrangement()
{
    FrameState{saveGeometry(), saveState(), m_host.windows().saveState()}.save();
}
