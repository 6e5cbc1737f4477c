#pragma once

class QString;

/// The main window.
class IMainFrame
{
public:
    virtual ~IMainFrame() = default;
    /// The program's own title.
    virtual void setTitle(const QString& title) = 0;
    /// The name of what is open, which stands before the title; empty while nothing is.
    virtual void setDocument(const QString& name) = 0;
    virtual void show() = 0;
};
