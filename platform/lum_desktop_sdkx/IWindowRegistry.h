#pragma once

#include "lum_desktop_sdkx/IWindow.h"

#include <QStringList>

class IDictionary;

/// The open windows of the frame.
///
/// A name is looked up first as the registered class name, then as the name in the layout, then as
/// the caption, English or translated: "MapWindow", "DataMap" and "Map" find one window.
class IWindowRegistry
{
public:
    virtual ~IWindowRegistry() = default;

    /// Null when no such window is open.
    [[nodiscard]] virtual IWindow* find(const QString& name) const = 0;

    /// Shows the window and brings it to the front.
    /// \returns false when no such window is open
    virtual bool activate(const QString& name) = 0;

    /// Brings the window to the front of its tabs when it is open in the frame and would cover none
    /// of `uncovered`. Nothing else changes: a window that the user has closed stays closed, and
    /// the focus stays where it is. \returns whether the window can be seen now
    virtual bool reveal(const QString& name, const QStringList& uncovered) = 0;

    /// Closes a window as its cross does: the View menu and `activate` bring it back.
    /// \returns false when there is no such window, or it is in no dock
    virtual bool close(const QString& name) = 0;

    /// Opens a window of a registered class, or returns the one that is open.
    /// \param parameters all are passed on to a new window. Read here are "caption", the name of a
    ///        new window; "title", the text of its tab; and "isSetActive", which brings the window
    ///        to the front when it is "1"
    /// \returns null, and a line in the log, when the class is not registered
    virtual IWindow* open(const QString& className, const IDictionary& parameters) = 0;

    /// Finds a window by another interface of it, such as `IMapWindow`; null when there is none.
    template <class Face>
    [[nodiscard]] Face* findAs(const QString& name) const
    {
        return dynamic_cast<Face*>(find(name));
    }
};
