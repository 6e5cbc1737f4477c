#include "exchange/SurveyRowWriter.h"

#include "model/CodeTables.h"
#include "model/PointNumber.h"

#include <algorithm>

namespace {

using Form = CsvForm;

bool holds(const std::vector<const SurveyColumn*>& columns, const SurveyColumn::Member& member)
{
    return std::any_of(columns.begin(), columns.end(), [&](const SurveyColumn* column) {
        return column != nullptr && column->member == member;
    });
}

} // namespace

SurveyRowWriter::SurveyRowWriter(const QStringList& captions, int degreeFormat)
    : m_captions(captions), m_angles(degreeFormat), m_loft(measureModeText(0).toStdString()),
      m_survey(measureModeText(1).toStdString())
{
    for (const QString& caption : captions)
        m_columns.push_back(surveyColumnOf(caption));
    m_hasNumbers =
        holds(m_columns, &SurveyPoint::lineNumber) && holds(m_columns, &SurveyPoint::pointNumber);
}

std::string_view SurveyRowWriter::heading()
{
    m_row.clear();
    for (const QString& caption : m_captions)
        m_row.addText(caption.toStdString());
    return m_row.finished();
}

std::string_view SurveyRowWriter::row(const SurveyPoint& point)
{
    if (!m_hasNumbers)
        return {};
    m_row.clear();
    for (const SurveyColumn* column : m_columns) {
        if (column == nullptr)
            m_row.addText({});
        else
            addField(point, *column);
    }
    return m_row.finished();
}

void SurveyRowWriter::addField(const SurveyPoint& point, const SurveyColumn& column)
{
    switch (column.csv) {
    case Form::Text:
        return m_row.addText(fieldOf<std::string>(point, column));
    case Form::PointNumber:
        return m_row.addText(writtenPointNumber(point.pointNumber));
    case Form::PointMark:
        return m_row.addText(point.pointMark == 0 ? "S" : "R");
    case Form::Angle:
        return m_row.addAngle(m_angles, fieldOf<double>(point, column));
    case Form::Decimals4:
        return m_row.addFixed(fieldOf<double>(point, column), 4);
    case Form::Decimals6:
        return m_row.addFixed(fieldOf<double>(point, column), 6);
    case Form::SixDigitsReadWhole:
        return m_row.addGeneral(fieldOf<double>(point, column));
    case Form::Integer:
        return m_row.addInteger(fieldOf<std::int32_t>(point, column));
    case Form::WholePart:
        return m_row.addInteger(fieldOf<std::int64_t>(point, column));
    case Form::Time:
        return m_row.addTime(m_times, fieldOf<std::int64_t>(point, column));
    case Form::MeasureMode:
        return m_row.addText(point.measureMode == 0 ? m_loft : m_survey);
    case Form::SolutionType:
        return m_row.addText(m_solutions.name(point.solutionType));
    }
}
