#pragma once

class IDictionary;
class QWidget;

/// A window component: a widget in a dock, among the central tabs or in the status bar.
///
/// Made with (configuration text, host). The configuration holds the attributes of the window's
/// entry in the frame's layout, as a key list.
class IWindow
{
public:
    virtual ~IWindow() = default;

    /// The widget of the component. It lives as long as the component.
    [[nodiscard]] virtual QWidget* widget() = 0;

    /// The parameters of the component, read from its configuration text.
    [[nodiscard]] virtual IDictionary& parameters() = 0;

    /// Called after the window was brought to the front.
    virtual void onActivated() {}

    /// Called after the user has closed the window. It stays there, and may be shown again.
    virtual void onClosed() {}
};

/// The interface that the window components of this program implement.
class IWindowx : public IWindow
{
};
