#include "exchange/SurveyRowReader.h"

#include "basalt_utilities/FixedDecimals.h"
#include "exchange/CsvFields.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Form = SurveyCsvColumn::Form;

constexpr std::size_t kLineColumn = 0; ///< in `surveyCsvColumns()`
constexpr std::size_t kPointColumn = 1;
constexpr std::size_t kNowhere = std::string_view::npos;

template <class Value>
Value& valueOf(SurveyPoint& point, const SurveyCsvColumn& column)
{
    const auto* const member = std::get_if<Value SurveyPoint::*>(&column.column->member);
    Q_ASSERT(member != nullptr);
    return point.*(*member);
}

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

/// As `basalt::trimmed`, in line for ten million fields.
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
    if (line.find(m_captions[kLineColumn]) == kNowhere ||
        line.find(m_captions[kPointColumn]) == kNowhere)
        return false; // soon, for a large file that is none of ours
    std::array<std::size_t, kSurveyColumnCount> indices{};
    indices.fill(kNowhere);
    CsvFields fields(line);
    std::string_view field;
    for (std::size_t index = 0; fields.next(field); ++index) {
        const auto found = std::find(m_captions.begin(), m_captions.end(), withoutBlanks(field));
        if (found != m_captions.end())
            indices[static_cast<std::size_t>(found - m_captions.begin())] = index;
    }
    if (indices[kLineColumn] == kNowhere || indices[kPointColumn] == kNowhere)
        return false;
    m_places.clear();
    for (std::size_t i = 0; i < indices.size(); ++i) {
        const SurveyCsvColumn& column = surveyCsvColumns()[i];
        if (indices[i] != kNowhere && column.isRead)
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
        const SurveyCsvColumn& column = *place.column;
        const bool isNumber = column.form == Form::Fixed || column.form == Form::Angle;
        if (isNumber && fields.nextNumber(valueOf<double>(point, column)))
            continue;
        fields.next(field);
        field = withoutBlanks(field);
        if (!setField(field, column, point) && !field.empty())
            m_misread.push_back(
                {m_captions[std::size_t(&column - surveyCsvColumns().data())], field});
    }
    return !point.pointNumber.empty();
}

bool SurveyRowReader::setField(std::string_view text, const SurveyCsvColumn& column,
                               SurveyPoint& point)
{
    const auto set = [&]<class Value>(const std::optional<Value>& value) {
        valueOf<Value>(point, column) = value.value_or(Value());
        return value.has_value();
    };
    switch (column.form) {
    case Form::Text:
    case Form::PointNumber:
        valueOf<std::string>(point, column) = text;
        return true;
    case Form::PointMark:
        point.pointMark = text == "S" ? 0 : 1;
        return true;
    case Form::Angle:
        return set(m_angles.read(text));
    case Form::Fixed:
        return set(basalt::wholeDecimal(text));
    case Form::Age:
        return set(withoutDecimals(basalt::wholeDecimal(text)));
    case Form::Integer:
        return set(std::optional<std::int32_t>(basalt::wholeInteger(text)));
    case Form::Offset:
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
