#pragma once

class QString;

/// The main window.
class IMainFrame
{
public:
    virtual ~IMainFrame() = default;
    /// The name of the program.
    virtual void setTitle(const QString& title) = 0;
    /// The name of what is open, shown before the title; empty while nothing is open.
    virtual void setDocument(const QString& name) = 0;
    virtual void show() = 0;
};
