#include "model/SurveyRecord.h"

#include "basalt_utilities/Numbers.h"
#include "model/PointNumber.h"
#include "model/RowNumbers.h"
#include "model/RowText.h"

namespace SurveyRecord {

namespace {

using Form = StoredForm;

void writeField(const SurveyPoint& point, const SurveyColumn& column, RecordTexts& texts)
{
    switch (column.stored) {
    case Form::None:
        return;
    case Form::Text:
        return texts.add(fieldOf<std::string>(point, column));
    case Form::PointNumber:
        return texts.add(writtenPointNumber(point.pointNumber));
    case Form::Integer:
        return texts.addInteger(fieldOf<std::int32_t>(point, column));
    case Form::LongInteger:
        return texts.addInteger(fieldOf<std::int64_t>(point, column));
    case Form::Decimals4:
        return texts.addFixed(fieldOf<double>(point, column), 4);
    case Form::Decimals8:
        return texts.addFixed(fieldOf<double>(point, column), 8);
    case Form::SixDigitsReadWhole:
        return texts.addGeneral(fieldOf<double>(point, column));
    }
}

void readField(std::string_view text, const SurveyColumn& column, SurveyPoint& point)
{
    switch (column.stored) {
    case Form::None:
        return;
    case Form::Text:
    case Form::PointNumber:
        fieldOf<std::string>(point, column) = rowText(text);
        return;
    case Form::Integer:
        fieldOf<std::int32_t>(point, column) = basalt::parseInteger(text);
        return;
    case Form::LongInteger:
        fieldOf<std::int64_t>(point, column) = readInteger64(text);
        return;
    case Form::Decimals4:
    case Form::Decimals8:
        fieldOf<double>(point, column) = basalt::readDecimal(text);
        return;
    case Form::SixDigitsReadWhole:
        fieldOf<double>(point, column) = basalt::parseInteger(text);
        return;
    }
}

} // namespace

std::string columns()
{
    std::string list;
    for (const SurveyColumn& column : surveyColumns()) {
        if (column.stored == Form::None)
            continue;
        list += list.empty() ? "" : ",";
        list += column.key;
    }
    return list;
}

void write(const SurveyPoint& point, RecordTexts& texts)
{
    texts.clear();
    for (const SurveyColumn& column : surveyColumns())
        writeField(point, column, texts);
}

SurveyPoint Reader::read(const IDictionary& row)
{
    if (m_places.empty()) {
        for (const SurveyColumn& column : surveyColumns()) {
            const std::size_t place = columnPlace(row, column.key);
            if (place < row.size())
                m_places.push_back({place, &column});
        }
    }
    SurveyPoint point;
    for (const auto& [index, column] : m_places)
        readField(row.valueAt(index), *column, point);
    return point;
}

} // namespace SurveyRecord
