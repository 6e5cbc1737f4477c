#include "quality/problems/ResultName.h"

#include "model/PointNumber.h"
#include "quality/MeasuredPoint.h"
#include "quality/ResurveyCode.h"

namespace {

constexpr int kMostResurveys = 9;

std::string asCheckPoint(const std::string& point)
{
    return std::string(writtenPointNumber('C' + point));
}

} // namespace

NamedPoint ResultNames::pointOf(const SurveyPoint& result) const
{
    const std::string& number = result.pointNumber;
    const DesignPoint* const design = measuredPoint(m_design, result.lineNumber, number, m_code);
    if (design != nullptr && design->pointNumber == number)
        return {NameForm::First, number, design};
    if (isCheckPoint(number))
        return {NameForm::Check, std::string(writtenPointNumber(number).substr(1)), design};
    if (!m_code.empty() && number.find(m_code) != std::string::npos)
        return {NameForm::Resurvey, withoutCode(number, m_code), design};
    return {NameForm::First, number, design};
}

std::string ResultNames::numberFor(const std::string& point, NameForm form,
                                   std::string_view result) const
{
    if (form == NameForm::First)
        return point;
    if (form == NameForm::Check)
        return isCheckPoint('C' + point) ? asCheckPoint(point) : std::string();
    if (result.starts_with(m_code))
        return std::string(m_code) + point;
    std::string number = point;
    do {
        number += m_code;
        result.remove_suffix(m_code.size());
    } while (result.ends_with(m_code));
    return number;
}

std::string ResultNames::numberOfAnother(const DesignPoint& point, NameForm form,
                                         const SurveyPoints& survey) const
{
    if (form != NameForm::Resurvey && asCheckPoint(point.pointNumber) == 'C' + point.pointNumber &&
        isCheckPoint('C' + point.pointNumber))
        return 'C' + point.pointNumber; // each gets a counter of its own
    std::string number = point.pointNumber;
    for (int i = 0; i < kMostResurveys && !m_code.empty(); ++i) {
        number += m_code;
        if (survey.find(point.lineNumber, number) == nullptr)
            return number;
    }
    return {};
}
