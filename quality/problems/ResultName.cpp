#include "quality/problems/ResultName.h"

#include "model/PointNumber.h"
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
    const auto named = [&](NameForm form, std::string number) {
        const DesignPoint* const design = m_design.find(result.lineNumber, number);
        return NamedPoint{form, std::move(number), design};
    };
    NamedPoint point = named(NameForm::First, result.pointNumber);
    if (point.design != nullptr)
        return point;
    if (isCheckPoint(result.pointNumber))
        return named(NameForm::Check,
                     std::string(writtenPointNumber(result.pointNumber).substr(1)));
    if (!m_code.empty() && result.pointNumber.find(m_code) != std::string::npos)
        return named(NameForm::Resurvey, withoutCode(result.pointNumber, m_code));
    return point;
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
