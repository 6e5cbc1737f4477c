#pragma once

class QString;
struct DesktopDocument;

/// The main window.
class IMainFrame
{
public:
    virtual ~IMainFrame() = default;
    /// The name of the program.
    virtual void setTitle(const QString& title) = 0;
    /// What is open, shown before the title.
    virtual void setDocument(const DesktopDocument& document) = 0;
    /// A sentence for the status bar.
    virtual void tell(const QString& sentence) = 0;
    virtual void show() = 0;
};
