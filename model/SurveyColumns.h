#pragma once

#include "model/Language.h"
#include "model/SurveyPoint.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <span>
#include <string>
#include <variant>

/// How a field stands in the database.
enum class StoredForm
{
    None, ///< it is not stored
    Text,
    PointNumber, ///< see `writtenPointNumber`
    Integer,
    LongInteger,        ///< of 64 bits
    Decimals4,          ///< a text with 4 decimals
    Decimals8,          ///< a text with 8 decimals
    SixDigitsReadWhole, ///< written with six significant digits, read without its decimals
};

/// How a field stands in a CSV file.
enum class CsvForm
{
    Text,
    PointNumber, ///< see `writtenPointNumber`
    PointMark,   ///< "S" for 0, otherwise "R"
    Angle,       ///< see AngleText
    Decimals4,
    Decimals6,
    SixDigitsReadWhole, ///< written with six significant digits, read without its decimals
    Integer,
    WholePart,   ///< a 64-bit integer, read without its decimals
    Time,        ///< see LocalTimes
    MeasureMode, ///< its name, see CodeTables.h
    SolutionType ///< its name, see CodeTables.h
};

/// One field of a survey result: how it is named, shown, stored and exchanged.
struct SurveyColumn
{
    using Member = std::variant<std::string SurveyPoint::*, double SurveyPoint::*,
                                std::int32_t SurveyPoint::*, std::int64_t SurveyPoint::*>;

    const char* key;     ///< also the column of the table ExplorationResultItem
    const char* caption; ///< source text
    Member member;
    StoredForm stored;
    CsvForm csv;
    int since = 0;             ///< the version of the table that has it first
    bool isReadFromCsv = true; ///< otherwise an import passes over its column
};

/// All fields, in the order in which they are shown, exchanged and stored.
[[nodiscard]] std::span<const SurveyColumn> surveyColumns();

/// The captions of all fields, translated, in the same order.
[[nodiscard]] QStringList surveyCaptions(const Language& language = {});

/// The field with a translated caption; null when there is none.
[[nodiscard]] const SurveyColumn* surveyColumnOf(const QString& caption);

/// Where `point` holds the field; `Value` is the type that the column's forms are for.
template <class Value, class Point>
[[nodiscard]] auto& fieldOf(Point& point, const SurveyColumn& column)
{
    const auto* const member = std::get_if<Value SurveyPoint::*>(&column.member);
    Q_ASSERT(member != nullptr);
    return point.*(*member);
}
