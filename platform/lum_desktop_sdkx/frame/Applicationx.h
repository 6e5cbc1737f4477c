#pragma once

#include "lum_desktop_sdkx/frame/CommandLine.h"
#include "lum_desktop_sdkx/frame/DesktopHost.h"

#include <QApplication>

#include <memory>

class MainFrame;

/// The application object of the desktop.
///
/// Its configuration is in `basalt::configFolder()`: the dictionary "<tool path>.xml", and beside
/// it "main_frame.xml". `CommandLine` tells the options.
class Applicationx final : public QApplication
{
    Q_OBJECT

public:
    /// Reads the configuration dictionary. When it cannot be read, the log says why, and the
    /// defaults apply. Ends the program when the command line asks for a text only.
    /// \param argc,argv must outlive the application
    Applicationx(int& argc, char** argv, const char* applicationId, const char* toolPath);
    ~Applicationx() override;

    [[nodiscard]] static Applicationx& instance();

    [[nodiscard]] DesktopHost& host() { return m_host; }

    /// The file that the command line names; empty without one.
    [[nodiscard]] const QString& fileToOpen() const { return m_commandLine.fileToOpen; }
    /// From here on a later start of `program` shows this window and opens its file here.
    void receiveLaterStarts(const QString& program);

    /// The main frame. The first call loads texts and appearance by the system settings and builds
    /// it.
    [[nodiscard]] MainFrame& mainFrame();

    /// Delivers an event. An exception of the receiver goes into the log and does not end the
    /// program.
    bool notify(QObject* receiver, QEvent* event) override;

private:
    void reportShown();

    QString m_toolFolder; ///< named by the tool path
    CommandLine m_commandLine;
    QString m_layoutProblem; ///< why the layout could not be read; empty when it was
    DesktopHost m_host;
    std::unique_ptr<MainFrame> m_mainFrame;
};
