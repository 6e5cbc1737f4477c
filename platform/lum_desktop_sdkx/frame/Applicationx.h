#pragma once

#include "lum_desktop_sdkx/frame/DesktopHost.h"

#include <QApplication>

#include <memory>

class MainFrame;

/// The application object of the desktop.
///
/// Its configuration is in `basalt::configFolder()`: the dictionary "<tool path>.xml", and beside
/// it "main_frame.xml". The command line takes a file to open once the window is shown, and these
/// options:
/// - "--startup-time" prints the CPU time until the window is shown, and ends the program
/// - "--screenshot FILE" writes a picture of the window, and ends the program
/// - "--components" lists the registered components, and ends the program
class Applicationx final : public QApplication
{
    Q_OBJECT

public:
    /// Reads the configuration dictionary. When it cannot be read, the log says why, and the
    /// defaults apply.
    /// \param argc,argv must outlive the application
    Applicationx(int& argc, char** argv, const char* applicationId, const char* toolPath);
    ~Applicationx() override;

    [[nodiscard]] static Applicationx& instance();

    [[nodiscard]] DesktopHost& host() { return m_host; }

    /// The main frame. The first call loads texts and appearance by the system settings and builds
    /// it.
    [[nodiscard]] MainFrame& mainFrame();

    /// Delivers an event. An exception of the receiver goes into the log and does not end the
    /// program.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    void readOptions();
    void reportShown();

    QString m_configFolder; ///< named by the application id
    QString m_toolFolder;   ///< named by the tool path
    bool m_printsStartupTime = false;
    QString m_screenshotFile;
    QString m_fileToOpen;
    QString m_layoutProblem; ///< why the layout could not be read; empty when it was
    DesktopHost m_host;
    std::unique_ptr<MainFrame> m_mainFrame;
};
