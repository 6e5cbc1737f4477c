#include "exchange/SurveyRowReader.h"

#include "basalt_utilities/FixedDecimals.h"
#include "exchange/CsvFields.h"
#include "lum_sdk/Text.h"
#include "model/CodeTables.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

using Form = CsvForm;
using Taken = SurveyRowReader::Taken;

/// Whether the form is a number, so that the quick reading of a plain number may be tried.
bool isDecimal(Form form)
{
    return form == Form::Decimals4 || form == Form::Decimals6 || form == Form::Angle;
}

/// Sets the field to a number without its decimals.
Taken takeWhole(std::string_view text, const SurveyColumn& column, SurveyPoint& point)
{
    const auto number = basalt::wholeDecimal(text);
    const double whole = std::trunc(number.value_or(0));
    bool isTaken = number.has_value();
    if (column.csv == Form::SixDigitsReadWhole) {
        fieldOf<double>(point, column) = whole;
    } else {
        constexpr double kLimit = 0x1p63;
        const auto integer = basalt::wholeInteger64(text); // exact where `whole` is not
        isTaken = isTaken && (integer || (whole >= -kLimit && whole < kLimit));
        fieldOf<std::int64_t>(point, column) =
            integer ? *integer : static_cast<std::int64_t>(isTaken ? whole : 0);
    }
    if (!isTaken)
        return Taken::AsZero;
    return whole == *number ? Taken::AsItStands : Taken::WithoutDecimals;
}

} // namespace

SurveyRowReader::SurveyRowReader(const SurveyHeadings::Heading& heading)
    : m_captions(heading.captions), m_fieldCount(heading.fieldCount),
      m_captionCount(heading.captionCount), m_angles(0, heading.language),
      m_solutions(heading.language), m_loft(measureModeText(0, heading.language).toStdString()),
      m_survey(measureModeText(1, heading.language).toStdString())
{
    for (std::size_t i = 0; i < heading.indices.size(); ++i) {
        const SurveyColumn& column = surveyColumns()[i];
        if (heading.indices[i] != SurveyHeadings::kNowhere && column.isReadFromCsv)
            m_places.push_back({heading.indices[i], &column});
    }
    std::sort(m_places.begin(), m_places.end(),
              [](const Place& a, const Place& b) { return a.index < b.index; });
}

bool SurveyRowReader::read(std::string_view line, SurveyPoint& point)
{
    CsvFields fields(line);
    std::string_view field;
    std::size_t index = 0; // how many fields are passed
    m_changes.clear();
    for (const Place& place : m_places) {
        while (index < place.index && fields.next(field))
            ++index;
        const SurveyColumn& column = *place.column;
        if (isDecimal(column.csv) && fields.nextNumber(fieldOf<double>(point, column))) {
            ++index;
            continue;
        }
        index += fields.next(field) ? 1U : 0U;
        field = withoutBlanks(field);
        const Taken taken = setField(field, column, point);
        if (taken != Taken::AsItStands && !field.empty())
            m_changes.push_back({&column, field, taken});
    }
    while (index < m_fieldCount && fields.next(field))
        ++index;
    m_isShort = index < m_captionCount;
    m_surplus.reset();
    if (!fields.isDone())
        m_surplus = fields.rest();
    return !point.pointNumber.empty();
}

SurveyRowReader::Taken SurveyRowReader::setField(std::string_view text, const SurveyColumn& column,
                                                 SurveyPoint& point)
{
    const auto set = [&]<class Value>(const std::optional<Value>& value) {
        fieldOf<Value>(point, column) = value.value_or(Value());
        return value ? Taken::AsItStands : Taken::AsZero;
    };
    const auto known = [](bool isKnown) { return isKnown ? Taken::AsItStands : Taken::AsAnother; };
    switch (column.csv) {
    case Form::Text:
    case Form::PointNumber:
        fieldOf<std::string>(point, column) = text;
        break;
    case Form::PointMark:
        point.pointMark = text == "S" ? 0 : 1;
        return known(text == "S" || text == "R");
    case Form::Angle: {
        bool isWhole = true;
        const Taken taken = set(m_angles.read(text, &isWhole));
        return isWhole ? taken : Taken::AsAnother;
    }
    case Form::Decimals4:
    case Form::Decimals6:
        return set(basalt::wholeDecimal(text));
    case Form::SixDigitsReadWhole:
    case Form::WholePart:
        return takeWhole(text, column, point);
    case Form::Integer:
        return set(std::optional<std::int32_t>(basalt::wholeInteger(text)));
    case Form::Time:
        return set(m_times.read(text));
    case Form::MeasureMode:
        point.measureMode = text == m_loft ? 0 : 1;
        return known(text == m_loft || text == m_survey);
    case Form::SolutionType:
        point.solutionType = m_solutions.code(text);
        return known(point.solutionType >= 0 || text == m_solutions.name(point.solutionType));
    }
    return Taken::AsItStands;
}

QString SurveyRowReader::surplusText() const
{
    return ::surplusText(m_fieldCount, m_surplus.value_or(std::string_view()));
}

QString SurveyRowReader::toText(const Change& change, const SurveyPoint& point)
{
    const QString caption = lum::toQString(
        m_captions[static_cast<std::size_t>(change.column - surveyColumns().data())]);
    const QString text = shownField(change.text);
    if (change.taken == Taken::AsZero)
        return (change.column->csv == Form::Time
                    ? QCoreApplication::translate(
                          "SurveyCsv", "%1 \"%2\" is no time such as 2024/12/31 23:59:59.")
                    : QCoreApplication::translate("SurveyCsv", "%1 \"%2\" cannot be read."))
            .arg(caption, text);
    return QCoreApplication::translate("SurveyCsv", "%1 \"%2\" is taken for \"%3\".")
        .arg(caption, text, became(*change.column, point));
}

QString SurveyRowReader::became(const SurveyColumn& column, const SurveyPoint& point)
{
    switch (column.csv) {
    case Form::SolutionType:
        return lum::toQString(m_solutions.name(point.solutionType));
    case Form::MeasureMode:
        return QString::fromStdString(m_survey);
    case Form::Angle:
        return QString::number(fieldOf<double>(point, column), 'f', 8);
    default:
        return QStringLiteral("R"); // of a mark, the only form left
    }
}
