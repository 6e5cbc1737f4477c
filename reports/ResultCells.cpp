#include "reports/ResultCells.h"

#include "basalt_utilities/KeyList.h"
#include "lum_sdk/coords/LengthUnit.h"
#include "lum_sdk/Text.h"
#include "model/CodeTables.h"
#include "model/PointNumber.h"

#include <algorithm>

namespace {

// The units of fields, by their keys.
constexpr const char* kOnPlane =
    "north,east,reference_north,reference_east,design_north,design_east,transversal_deviation,"
    "longitudinal_deviation,resurvey_x_diff,resurvey_y_diff";
constexpr const char* kMetres =
    "altitude,elevation,antenna_height,horizontal_accuracy,vertical_accuracy,reference_altitude,"
    "reference_distance,design_elevation,rms,resurvey_h_diff,sea_height";

bool isIn(std::string_view list, std::string_view key)
{
    while (!list.empty()) {
        if (next_word3(list, ',') == key)
            return true;
    }
    return false;
}

QString unitOf(const SurveyColumn& column, const QString& planeUnit)
{
    if (column.csv == CsvForm::Angle)
        return QString(QChar(0xB0));
    if (isIn(kOnPlane, column.key))
        return planeUnit;
    if (isIn(kMetres, column.key))
        return QStringLiteral("m");
    return std::string_view(column.key) == "age_of_diff" ? QStringLiteral("s") : QString();
}

SheetColumn formOf(CsvForm form)
{
    using Form = SheetColumn::Form;
    switch (form) {
    case CsvForm::Angle:
        return {{}, Form::Number, 8};
    case CsvForm::Decimals4:
        return {{}, Form::Number, 4};
    case CsvForm::Decimals6:
        return {{}, Form::Number, 6};
    case CsvForm::SixDigitsReadWhole:
        return {{}, Form::Number, CellFormats::kAsNeeded};
    case CsvForm::Integer:
    case CsvForm::WholePart:
        return {{}, Form::Number, 0};
    case CsvForm::Time:
        return {{}, Form::Time};
    case CsvForm::Text:
        return {{}, Form::Text};
    default:
        return {{}, Form::Code};
    }
}

} // namespace

ResultCells::ResultCells() : m_loft(measureModeText(0)), m_survey(measureModeText(1)) {}

std::vector<SheetColumn> ResultCells::columns(const IDictionary& coordParameters)
{
    const QString planeUnit = lum::toQString(symbolOf(lum::lengthUnitOf(coordParameters)));
    const QStringList captions = surveyCaptions();
    std::vector<SheetColumn> columns;
    for (const SurveyColumn& field : surveyColumns()) {
        SheetColumn& column = columns.emplace_back(formOf(field.csv));
        column.caption = captions[int(columns.size()) - 1];
        if (const QString unit = unitOf(field, planeUnit); !unit.isEmpty())
            column.caption += QStringLiteral(" (%1)").arg(unit);
    }
    return columns;
}

std::size_t ResultCells::indexOf(std::string_view key)
{
    const auto columns = surveyColumns();
    const auto found =
        std::find_if(columns.begin(), columns.end(),
                     [key](const SurveyColumn& column) { return column.key == key; });
    Q_ASSERT(found != columns.end());
    return static_cast<std::size_t>(found - columns.begin());
}

void ResultCells::add(RowCells& row, const SurveyPoint& point)
{
    for (const SurveyColumn& column : surveyColumns())
        add(row, point, column);
    row.endRow();
}

void ResultCells::add(RowCells& row, const SurveyPoint& point, const SurveyColumn& column)
{
    switch (column.csv) {
    case CsvForm::Text:
        row.text(fieldOf<std::string>(point, column));
        break;
    case CsvForm::PointNumber:
        row.text(writtenPointNumber(point.pointNumber));
        break;
    case CsvForm::PointMark:
        row.text(point.pointMark == 0 ? "S" : "R");
        break;
    case CsvForm::Angle:
    case CsvForm::Decimals4:
    case CsvForm::Decimals6:
    case CsvForm::SixDigitsReadWhole:
        row.number(fieldOf<double>(point, column));
        break;
    case CsvForm::Integer:
        row.integer(fieldOf<std::int32_t>(point, column));
        break;
    case CsvForm::WholePart:
        row.integer(fieldOf<std::int64_t>(point, column));
        break;
    case CsvForm::Time:
        row.timeOrBlank(fieldOf<std::int64_t>(point, column));
        break;
    case CsvForm::MeasureMode:
        row.text(point.measureMode == 0 ? m_loft : m_survey);
        break;
    case CsvForm::SolutionType:
        row.text(m_solutions.name(point.solutionType));
        break;
    }
}
