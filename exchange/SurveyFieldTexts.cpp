#include "exchange/SurveyFieldTexts.h"

#include "exchange/CsvRow.h"
#include "model/CodeTables.h"
#include "model/PointNumber.h"

#include <utility>

SurveyFieldTexts::SurveyFieldTexts(int degreeFormat, basalt::LocalTimes times)
    : m_angles(degreeFormat), m_times(std::move(times)), m_loft(measureModeText(0).toStdString()),
      m_survey(measureModeText(1).toStdString())
{
}

void SurveyFieldTexts::add(CsvRow& row, const SurveyPoint& point, const SurveyColumn& column)
{
    using Form = CsvForm;
    switch (column.csv) {
    case Form::Text:
        return row.addText(fieldOf<std::string>(point, column));
    case Form::PointNumber:
        return row.addText(writtenPointNumber(point.pointNumber));
    case Form::PointMark:
        return row.addText(point.pointMark == 0 ? "S" : "R");
    case Form::Angle:
        return row.addAngle(m_angles, fieldOf<double>(point, column));
    case Form::Decimals4:
        return row.addFixed(fieldOf<double>(point, column), 4);
    case Form::Decimals6:
        return row.addFixed(fieldOf<double>(point, column), 6);
    case Form::SixDigitsReadWhole:
        return row.addGeneral(fieldOf<double>(point, column));
    case Form::Integer:
        return row.addInteger(fieldOf<std::int32_t>(point, column));
    case Form::WholePart:
        return row.addInteger(fieldOf<std::int64_t>(point, column));
    case Form::Time:
        return row.addTime(m_times, fieldOf<std::int64_t>(point, column));
    case Form::MeasureMode:
        return row.addText(point.measureMode == 0 ? m_loft : m_survey);
    case Form::SolutionType:
        return row.addText(m_solutions.name(point.solutionType));
    }
}
