#pragma once

#include <QString>

/// The program's hook into the life of the frame. Made with (configuration text, host); each
/// operation answers 1 for done and 0 for failed or refused.
class IGuiAssistant
{
public:
    virtual ~IGuiAssistant() = default;

    /// Called once the map view stands, before the frame is shown.
    virtual int onMapViewCreated() = 0;
    /// Called after that, to open the program's own windows.
    virtual int openMainWindows() = 0;
    /// Asked before the application closes; 0 keeps it open.
    virtual int queryClose() = 0;
    /// A file that the user dropped on the window or named at the start; 0 when it is not the
    /// program's to open.
    virtual int openFile(const QString& path) = 0;
};

/// An assistant that agrees to everything.
class GuiAssistantBase : public IGuiAssistant
{
public:
    int onMapViewCreated() override { return 1; }
    int openMainWindows() override { return 1; }
    int queryClose() override { return 1; }
    int openFile(const QString& /*path*/) override { return 0; }
};
