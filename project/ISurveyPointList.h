#pragma once

class QString;

/// A window that lists survey results, found by the name "Survey Data List".
class ISurveyPointList
{
public:
    virtual ~ISurveyPointList() = default;

    /// Shows this result and selects it.
    /// \returns whether the list has it
    virtual bool selectPoint(const QString& lineNumber, const QString& pointNumber) = 0;
};
