#pragma once

#include "exchange/SolutionTypeNames.h"
#include "exchange/workbook/RowCells.h"
#include "model/SurveyColumns.h"

class IDictionary;

/// Every field of survey results as the cells of a workbook.
class ResultCells
{
public:
    ResultCells();

    /// A column for each field, with its unit.
    [[nodiscard]] static std::vector<SheetColumn> columns(const IDictionary& coordParameters);

    /// The column of a field that there is.
    [[nodiscard]] static std::size_t indexOf(std::string_view key);

    /// Writes a row.
    void add(RowCells& row, const SurveyPoint& point);

private:
    void add(RowCells& row, const SurveyPoint& point, const SurveyColumn& column);

    SolutionTypeNames m_solutions;
    QString m_loft;
    QString m_survey;
};
