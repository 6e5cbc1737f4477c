#pragma once

#include <QString>

/// What the program does at fixed moments in the life of the frame. Made with (configuration text,
/// host). Each operation answers 1 for done and 0 for failed or refused.
class IGuiAssistant
{
public:
    virtual ~IGuiAssistant() = default;

    /// Called once, after the map window was made and before the frame is shown.
    virtual int onMapViewCreated() = 0;
    /// Called after that, to open the program's own windows.
    virtual int openMainWindows() = 0;
    /// Asked before the application closes; 0 keeps it open.
    virtual int queryClose() = 0;
    /// Whether `openFile` takes a file of this name; asked while it is dragged over the window.
    [[nodiscard]] virtual bool canOpen(const QString& path) const = 0;
    /// Opens a file that the user dropped on the window or named on the command line. Answers 0 for
    /// a file of another kind.
    virtual int openFile(const QString& path) = 0;
};

/// An assistant that agrees to everything.
class GuiAssistantBase : public IGuiAssistant
{
public:
    int onMapViewCreated() override { return 1; }
    int openMainWindows() override { return 1; }
    int queryClose() override { return 1; }
    [[nodiscard]] bool canOpen(const QString& /*path*/) const override { return false; }
    int openFile(const QString& /*path*/) override { return 0; }
};
