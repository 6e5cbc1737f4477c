#include "exchange/SurveyCsvColumns.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Form = SurveyCsvColumn::Form;

struct Exception
{
    SurveyColumn::Member member;
    Form form;
    int decimals = 0;
    bool isRead = true;
};

/// The columns whose form does not follow from their type.
const std::array<Exception, 12>& exceptions()
{
    static const std::array<Exception, 12> kExceptions{{
        {&SurveyPoint::pointNumber, Form::PointNumber},
        {&SurveyPoint::pointMark, Form::PointMark},
        {&SurveyPoint::latitude, Form::Angle},
        {&SurveyPoint::longitude, Form::Angle},
        {&SurveyPoint::altitude, Form::Fixed, 6},
        {&SurveyPoint::referenceLongitude, Form::Angle},
        {&SurveyPoint::referenceLatitude, Form::Angle},
        {&SurveyPoint::measureMode, Form::MeasureMode},
        {&SurveyPoint::solutionType, Form::SolutionType},
        {&SurveyPoint::isResurvey, Form::Integer, 0, false}, // found by its own check
        {&SurveyPoint::seaHeight, Form::Fixed, 4, false},    // follows from the position
        {&SurveyPoint::rawOffset, Form::Offset},
    }};
    return kExceptions;
}

struct FormOfType
{
    int decimals;

    Form operator()(std::string SurveyPoint::* /*field*/) const { return Form::Text; }
    Form operator()(std::int32_t SurveyPoint::* /*field*/) const { return Form::Integer; }
    Form operator()(std::int64_t SurveyPoint::* /*field*/) const { return Form::Time; }
    Form operator()(double SurveyPoint::* /*field*/) const
    {
        return decimals == kGeneral ? Form::Age : Form::Fixed;
    }
};

SurveyCsvColumn csvColumn(const SurveyColumn& column)
{
    const auto& all = exceptions();
    const auto* const found = std::find_if(all.begin(), all.end(), [&](const Exception& exception) {
        return exception.member == column.member;
    });
    if (found != all.end())
        return {&column, found->form, found->decimals, found->isRead};
    return {&column, std::visit(FormOfType{column.decimals}, column.member), column.decimals};
}

} // namespace

const std::array<SurveyCsvColumn, kSurveyColumnCount>& surveyCsvColumns()
{
    static const auto kColumns = [] {
        std::array<SurveyCsvColumn, kSurveyColumnCount> columns{};
        std::transform(surveyColumns().begin(), surveyColumns().end(), columns.begin(), csvColumn);
        return columns;
    }();
    return kColumns;
}

const SurveyCsvColumn* surveyCsvColumn(const QString& caption)
{
    const int index = surveyCaptions().indexOf(caption);
    return index < 0 ? nullptr : &surveyCsvColumns()[static_cast<std::size_t>(index)];
}

QString measureModeText(int mode)
{
    return mode == 0 ? QCoreApplication::translate("SurveyCsv", "loft")
                     : QCoreApplication::translate("SurveyCsv", "survey");
}
