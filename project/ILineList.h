#pragma once

class QString;

/// A window that lists lines: "Survey Lines" those of the results, "Design Lines" the designed.
class ILineList
{
public:
    virtual ~ILineList() = default;

    /// Marks the line without announcing it: the answer to a selection that was made elsewhere.
    virtual void followLine(const QString& lineNumber) = 0;
};
