#pragma once

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"
#include "lum_desktop_sdkx/frame/FrameComponents.h"
#include "lum_desktop_sdkx/frame/MainFrame.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/map/MapComponents.h"
#include "lum_desktop_sdkx/Registration.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/Events.h"
#include "tests/support/Boxes.h"
#include "tests/support/Literals.h"

#include <QLabel>
#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/DockWidget.h>
#include <QtTest>

// What the tests of the main frame share: a frame that is shown, and windows for its docks.

class TestWindow : public QLabel, public IWindowx
{
public:
    TestWindow(const char* config, IDesktopHost* /*host*/)
        : m_parameters(desktop::componentParameters(config))
    {
    }
    QWidget* widget() override { return this; }
    IDictionary& parameters() override { return m_parameters; }

private:
    basalt::Dictionary m_parameters;
};

class OtherWindow final : public TestWindow
{
public:
    using TestWindow::TestWindow;
};

inline void registerTestWindows()
{
    registerMapComponents();
    registerFrameComponents();
    desktop::registration::window<TestWindow>("TestWindow", "");
    desktop::registration::window<OtherWindow>("OtherWindow", "");
}

inline FrameLayout layoutOf(const QByteArray& xml)
{
    FrameLayout layout;
    const QString fault = desktop::readFrameLayout(xml, layout);
    if (!fault.isEmpty())
        qFatal("%s", qPrintable(fault));
    return layout;
}

/// A frame that is shown, with its host, as the application object makes them.
struct ShownFrame
{
    explicit ShownFrame(const QByteArray& xml) : frame(host, layoutOf(xml))
    {
        frame.show();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] ads::CDockManager& docks() const
    {
        return *frame.findChild<ads::CDockManager*>();
    }
    [[nodiscard]] ads::CDockWidget* dock(const char* name) const
    {
        return docks().findDockWidget(QString::fromUtf8(name));
    }
    [[nodiscard]] QAction* action(const char* name)
    {
        return host.commands().action(QString::fromUtf8(name));
    }
    void setStatus(const char* key, const char* value)
    {
        get_system_status_dictionary().set(key, value);
        host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
    }
    void pressKey(Qt::Key key, Qt::KeyboardModifier modifier = Qt::NoModifier)
    {
        frame.activateWindow();
        QTRY_VERIFY(frame.isActiveWindow());
        QTest::keyClick(&frame, key, modifier);
    }

    DesktopHost host;
    MainFrame frame;
};
