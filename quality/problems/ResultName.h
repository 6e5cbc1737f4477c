#pragma once

#include "model/PointLines.h"

#include <string>
#include <string_view>

/// How the number of a result names a point.
enum class NameForm
{
    First,    ///< as the design does
    Resurvey, ///< with the resurvey code
    Check     ///< as a check point, see PointNumber.h
};

/// The point that a result names.
struct NamedPoint
{
    NameForm form = NameForm::First;
    std::string number;                  ///< without code or mark, as the design would have it
    const DesignPoint* design = nullptr; ///< null when the design has no such point
};

/// Reads the numbers of results. A number that the design has is that point's, whatever letters
/// stand in it.
class ResultNames
{
public:
    /// \param resurveyCode  when it is empty there are no resurveys
    ResultNames(const DesignPoints& design, std::string_view resurveyCode)
        : m_design(design), m_code(resurveyCode)
    {
    }

    [[nodiscard]] NamedPoint pointOf(const SurveyPoint& result) const;
    /// The number of a result of this form that is a result of `point`, in the way of `result`.
    /// Empty when there is none: a check point's number holds eight characters.
    [[nodiscard]] std::string numberFor(const std::string& point, NameForm form,
                                        std::string_view result) const;
    /// A number for one more result of a point, which none of `survey` has: that of a check point
    /// when the point's number has eight characters, otherwise of a resurvey. Empty when there is
    /// none.
    [[nodiscard]] std::string numberOfAnother(const DesignPoint& point, NameForm form,
                                              const SurveyPoints& survey) const;

private:
    const DesignPoints& m_design;
    std::string_view m_code;
};
