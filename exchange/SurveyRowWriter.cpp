#include "exchange/SurveyRowWriter.h"

#include "model/PointNumber.h"

#include <algorithm>

namespace {

using Form = SurveyCsvColumn::Form;

template <class Value>
const Value& valueOf(const SurveyPoint& point, const SurveyCsvColumn& column)
{
    const auto* const member = std::get_if<Value SurveyPoint::*>(&column.column->member);
    Q_ASSERT(member != nullptr);
    return point.*(*member);
}

bool holds(const std::vector<const SurveyCsvColumn*>& columns, const SurveyColumn::Member& member)
{
    return std::any_of(columns.begin(), columns.end(), [&](const SurveyCsvColumn* column) {
        return column != nullptr && column->column->member == member;
    });
}

} // namespace

SurveyRowWriter::SurveyRowWriter(const QStringList& captions, int degreeFormat)
    : m_captions(captions), m_angles(degreeFormat), m_loft(measureModeText(0).toStdString()),
      m_survey(measureModeText(1).toStdString())
{
    for (const QString& caption : captions)
        m_columns.push_back(surveyCsvColumn(caption));
    m_isIdentified =
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
    if (!m_isIdentified)
        return {};
    m_row.clear();
    for (const SurveyCsvColumn* column : m_columns) {
        if (column == nullptr)
            m_row.addText({});
        else
            addField(point, *column);
    }
    return m_row.finished();
}

void SurveyRowWriter::addField(const SurveyPoint& point, const SurveyCsvColumn& column)
{
    switch (column.form) {
    case Form::Text:
        return m_row.addText(valueOf<std::string>(point, column));
    case Form::PointNumber:
        return m_row.addText(writtenPointNumber(point.pointNumber));
    case Form::PointMark:
        return m_row.addText(point.pointMark == 0 ? "S" : "R");
    case Form::Angle:
        return m_row.addAngle(m_angles, valueOf<double>(point, column));
    case Form::Fixed:
        return m_row.addFixed(valueOf<double>(point, column), column.decimals);
    case Form::Age:
        return m_row.addGeneral(valueOf<double>(point, column));
    case Form::Integer:
        return m_row.addInteger(valueOf<std::int32_t>(point, column));
    case Form::Offset:
        return m_row.addInteger(valueOf<std::int64_t>(point, column));
    case Form::Time:
        return m_row.addTime(m_times, valueOf<std::int64_t>(point, column));
    case Form::MeasureMode:
        return m_row.addText(point.measureMode == 0 ? m_loft : m_survey);
    case Form::SolutionType:
        return m_row.addText(m_solutions.name(point.solutionType));
    }
}
