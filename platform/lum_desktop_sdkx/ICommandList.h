#pragma once

#include <QString>

class ICommandExecuterx;

/// The commands of the frame, by the name that the layout gives them, such as "Save Project".
class ICommandList
{
public:
    virtual ~ICommandList() = default;

    /// Null when no entry of that name is in the frame.
    [[nodiscard]] virtual ICommandExecuterx* find(const QString& name) const = 0;

    /// Runs it when it is enabled, and refreshes every entry's state afterwards.
    /// \returns false when there is no such command or it is disabled
    virtual bool execute(const QString& name) = 0;
};
