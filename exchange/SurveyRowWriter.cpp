#include "exchange/SurveyRowWriter.h"

#include <algorithm>

namespace {

bool holds(const std::vector<const SurveyColumn*>& columns, const SurveyColumn::Member& member)
{
    return std::any_of(columns.begin(), columns.end(), [&](const SurveyColumn* column) {
        return column != nullptr && column->member == member;
    });
}

} // namespace

SurveyRowWriter::SurveyRowWriter(const QStringList& captions, int degreeFormat)
    : m_captions(captions), m_fields(degreeFormat)
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
            m_fields.add(m_row, point, *column);
    }
    return m_row.finished();
}
