#pragma once

class QString;

/// A window that lists points: "Survey Data List" the results, "Design Data List" the design.
class IPointList
{
public:
    virtual ~IPointList() = default;

    /// Shows this point and selects it.
    /// \returns false when the list does not have it
    virtual bool selectPoint(const QString& lineNumber, const QString& pointNumber) = 0;
};
