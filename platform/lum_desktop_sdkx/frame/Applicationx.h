#pragma once

#include "lum_desktop_sdkx/frame/DesktopHost.h"

#include <QApplication>

#include <memory>

class MainFrame;

/// The application object of the desktop.
///
/// Its configuration lies in `basalt::configFolder()`: the configuration dictionary
/// "<tool path>.xml", and beside it "main_frame.xml". Options of the command line:
/// a file to open once the window is shown;
/// "--startup-time" prints the CPU time to the shown window and leaves; "--screenshot FILE" writes
/// a picture of the window and leaves; "--components" lists what is registered.
class Applicationx final : public QApplication
{
    Q_OBJECT

public:
    /// Reads the configuration dictionary; what is wrong with it stands in the log, and the
    /// defaults hold.
    /// \param argc,argv must outlive the application
    Applicationx(int& argc, char** argv, const char* applicationId, const char* toolPath);
    ~Applicationx() override;

    [[nodiscard]] static Applicationx& instance();

    [[nodiscard]] DesktopHost& host() { return m_host; }

    /// Loads texts and appearance by the system settings and builds the frame, at the first call.
    [[nodiscard]] MainFrame& mainFrame();

    /// Runs the component's code, and keeps what it throws from ending the program.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    void readOptions();
    void reportShown();

    QString m_configFolder; ///< of the application id
    QString m_toolFolder;   ///< of the tool path
    bool m_printsStartupTime = false;
    QString m_screenshotFile;
    QString m_fileToOpen;
    QString m_layoutProblem; ///< why the frame is the minimal one; empty when it is not
    DesktopHost m_host;
    std::unique_ptr<MainFrame> m_mainFrame;
};
