#include "model/SurveyRecord.h"

#include "basalt_utilities/Numbers.h"
#include "model/PointNumber.h"
#include "model/RowNumbers.h"
#include "model/RowText.h"

namespace SurveyRecord {

namespace {

bool isStored(const SurveyColumn& column)
{
    return column.key != std::string_view(kSeaHeight);
}

/// Appends one field, by its type.
struct FieldWriter
{
    const SurveyPoint& point;
    int decimals;
    RecordTexts& texts;

    void operator()(std::string SurveyPoint::*field) const { texts.add(point.*field); }
    void operator()(std::int32_t SurveyPoint::*field) const { texts.addInteger(point.*field); }
    void operator()(std::int64_t SurveyPoint::*field) const { texts.addInteger(point.*field); }
    void operator()(double SurveyPoint::*field) const
    {
        if (decimals == kGeneral)
            texts.addGeneral(point.*field);
        else
            texts.addFixed(point.*field, decimals);
    }
};

/// Sets one field, by its type.
struct FieldReader
{
    SurveyPoint& point;
    int decimals;
    std::string_view text;

    void operator()(std::string SurveyPoint::*field) const { point.*field = rowText(text); }
    void operator()(std::int32_t SurveyPoint::*field) const
    {
        point.*field = basalt::parseInteger(text);
    }
    void operator()(std::int64_t SurveyPoint::*field) const { point.*field = readInteger64(text); }
    void operator()(double SurveyPoint::*field) const
    {
        point.*field =
            decimals == kGeneral ? basalt::parseInteger(text) : basalt::readDecimal(text);
    }
};

} // namespace

std::string columns()
{
    std::string list;
    for (const SurveyColumn& column : surveyColumns()) {
        if (!isStored(column))
            continue;
        list += list.empty() ? "" : ",";
        list += column.key;
    }
    return list;
}

void write(const SurveyPoint& point, RecordTexts& texts)
{
    texts.clear();
    for (const SurveyColumn& column : surveyColumns()) {
        if (column.member == SurveyColumn::Member(&SurveyPoint::pointNumber))
            texts.add(writtenPointNumber(point.pointNumber));
        else if (isStored(column))
            std::visit(FieldWriter{point, column.decimals, texts}, column.member);
    }
}

SurveyPoint Reader::read(const IDictionary& row)
{
    if (m_places.empty()) {
        for (const SurveyColumn& column : surveyColumns()) {
            const std::size_t place = columnPlace(row, column.key);
            if (place < row.size() && isStored(column))
                m_places.push_back({place, &column});
        }
    }
    SurveyPoint point;
    for (const auto& [index, column] : m_places)
        std::visit(FieldReader{point, column->decimals, row.valueAt(index)}, column->member);
    return point;
}

} // namespace SurveyRecord
