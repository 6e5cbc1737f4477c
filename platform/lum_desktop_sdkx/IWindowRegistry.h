#pragma once

#include "lum_desktop_sdkx/IWindow.h"

#include <QString>

class IDictionary;

/// The open windows of the frame.
///
/// A name is looked up as registered class name, then as configured name, then as caption (English
/// or translated): "DesignLineTable" and "Design Data List" may both find one window.
class IWindowRegistry
{
public:
    virtual ~IWindowRegistry() = default;

    /// Null when no such window is open.
    [[nodiscard]] virtual IWindow* find(const QString& name) const = 0;

    /// Shows the window and brings it to the front.
    /// \returns false when no such window is open
    virtual bool activate(const QString& name) = 0;

    /// Opens a window of a registered class, or finds the open one.
    /// \param parameters "caption" (the name that a new window is found by), "title" (what its tab
    ///        shows) and "isSetActive" ("1" brings it to the front) are read here, all are passed
    ///        on to a new window
    /// \returns null, and a line in the log, when the class is not registered
    virtual IWindow* open(const QString& className, const IDictionary& parameters) = 0;

    /// The window as another face of it, such as `IMapWindow`; null when it has none.
    template <class Face>
    [[nodiscard]] Face* findAs(const QString& name) const
    {
        return dynamic_cast<Face*>(find(name));
    }
};
