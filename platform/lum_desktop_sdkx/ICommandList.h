#pragma once

#include <QString>

class ICommandExecuterx;

/// The commands of the frame, by the names that the layout gives them, such as "Full Screen".
class ICommandList
{
public:
    virtual ~ICommandList() = default;

    /// Null when no entry of that name is in the frame.
    [[nodiscard]] virtual ICommandExecuterx* find(const QString& name) const = 0;

    /// Executes the command when it is enabled. Afterwards all entries show their state anew.
    /// \returns false when there is no such command or it is disabled
    virtual bool execute(const QString& name) = 0;
};
