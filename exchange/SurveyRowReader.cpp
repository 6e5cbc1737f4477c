#include "exchange/SurveyRowReader.h"

#include "basalt_utilities/FixedDecimals.h"
#include "exchange/CsvFields.h"
#include "model/CodeTables.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Form = CsvForm;

constexpr std::size_t kNowhere = std::string_view::npos;

/// Whether the form is a number, so that the quick reading of a plain number may be tried.
bool isDecimal(Form form)
{
    return form == Form::Decimals4 || form == Form::Decimals6 || form == Form::Angle;
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// As `basalt::trimmed`, but inline, since a large file has ten million fields.
std::string_view withoutBlanks(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

std::optional<double> withoutDecimals(std::optional<double> number)
{
    return number ? std::trunc(*number) : number;
}

std::optional<std::int64_t> wholePart(std::string_view text)
{
    if (const auto integer = basalt::wholeInteger64(text))
        return integer;
    const auto number = withoutDecimals(basalt::wholeDecimal(text));
    constexpr double kLimit = 0x1p63;
    if (number && *number >= -kLimit && *number < kLimit)
        return static_cast<std::int64_t>(*number);
    return {};
}

} // namespace

SurveyRowReader::SurveyRowReader() : m_loft(measureModeText(0).toStdString())
{
    for (const QString& caption : surveyCaptions())
        m_captions.push_back(caption.toStdString());
}

bool SurveyRowReader::readHeading(std::string_view line)
{
    const std::string& lineCaption = m_captions[0];
    const std::string& pointCaption = m_captions[1];
    if (line.find(lineCaption) == kNowhere || line.find(pointCaption) == kNowhere)
        return false; // at once, since a large file of another kind has many lines
    std::vector<std::size_t> indices(m_captions.size(), kNowhere);
    CsvFields fields(line);
    std::string_view field;
    for (std::size_t index = 0; fields.next(field); ++index) {
        const auto found = std::find(m_captions.begin(), m_captions.end(), withoutBlanks(field));
        if (found != m_captions.end())
            indices[static_cast<std::size_t>(found - m_captions.begin())] = index;
    }
    if (indices[0] == kNowhere || indices[1] == kNowhere)
        return false;
    m_places.clear();
    for (std::size_t i = 0; i < indices.size(); ++i) {
        const SurveyColumn& column = surveyColumns()[i];
        if (indices[i] != kNowhere && column.isReadFromCsv)
            m_places.push_back({indices[i], &column});
    }
    std::sort(m_places.begin(), m_places.end(),
              [](const Place& a, const Place& b) { return a.index < b.index; });
    return true;
}

bool SurveyRowReader::read(std::string_view line, SurveyPoint& point)
{
    CsvFields fields(line);
    std::string_view field;
    std::size_t index = 0;
    m_misread.clear();
    for (const Place& place : m_places) {
        while (index < place.index && fields.next(field))
            ++index;
        ++index;
        const SurveyColumn& column = *place.column;
        if (isDecimal(column.csv) && fields.nextNumber(fieldOf<double>(point, column)))
            continue;
        fields.next(field);
        field = withoutBlanks(field);
        if (!setField(field, column, point) && !field.empty())
            m_misread.push_back({m_captions[std::size_t(&column - surveyColumns().data())], field});
    }
    return !point.pointNumber.empty();
}

bool SurveyRowReader::setField(std::string_view text, const SurveyColumn& column,
                               SurveyPoint& point)
{
    const auto set = [&]<class Value>(const std::optional<Value>& value) {
        fieldOf<Value>(point, column) = value.value_or(Value());
        return value.has_value();
    };
    switch (column.csv) {
    case Form::Text:
    case Form::PointNumber:
        fieldOf<std::string>(point, column) = text;
        return true;
    case Form::PointMark:
        point.pointMark = text == "S" ? 0 : 1;
        return true;
    case Form::Angle:
        return set(m_angles.read(text));
    case Form::Decimals4:
    case Form::Decimals6:
        return set(basalt::wholeDecimal(text));
    case Form::SixDigitsReadWhole:
        return set(withoutDecimals(basalt::wholeDecimal(text)));
    case Form::Integer:
        return set(std::optional<std::int32_t>(basalt::wholeInteger(text)));
    case Form::WholePart:
        return set(wholePart(text));
    case Form::Time:
        return set(m_times.read(text));
    case Form::MeasureMode:
        point.measureMode = text == m_loft ? 0 : 1;
        return true;
    case Form::SolutionType:
        point.solutionType = m_solutions.code(text);
        return point.solutionType >= 0 || text == m_solutions.name(point.solutionType);
    }
    return true;
}
