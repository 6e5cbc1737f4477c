#pragma once

class QString;

/// The main window.
class IMainFrame
{
public:
    virtual ~IMainFrame() = default;
    virtual void setTitle(const QString& title) = 0;
    virtual void show() = 0;
};
