#pragma once

#include <QString>

/// A command of the menus and tool bars. Made with (configuration text, host), once for each entry.
class ICommandExecuterx
{
public:
    virtual ~ICommandExecuterx() = default;

    [[nodiscard]] virtual bool isEnabled() const = 0;
    virtual void execute() = 0;
    [[nodiscard]] virtual bool isChecked() const = 0;
    /// Whether the entry has a check mark at all.
    [[nodiscard]] virtual bool isCheckable() const = 0;
    /// The text that the entry shows now, translated. An empty one means the text of the layout.
    [[nodiscard]] virtual QString caption() const = 0;
};
