#pragma once

class IDictionary;
class QWidget;

/// A window component: a widget in a dock, among the central tabs or in the status bar.
///
/// Made with (configuration text, host); the configuration is a key list, the attributes of the
/// window's entry in the frame's layout.
class IWindow
{
public:
    virtual ~IWindow() = default;

    /// The widget itself; it lives as long as the component.
    [[nodiscard]] virtual QWidget* widget() = 0;

    /// The component's parameters, with what its configuration text gave.
    [[nodiscard]] virtual IDictionary& parameters() = 0;

    /// Called after the window was brought to the front.
    virtual void onActivated() {}
};

/// The window kind that this program's own components implement.
class IWindowx : public IWindow
{
};
