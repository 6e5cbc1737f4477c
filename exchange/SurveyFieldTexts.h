#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "exchange/AngleText.h"
#include "exchange/SolutionTypeNames.h"
#include "model/SurveyColumns.h"

#include <string>

class CsvRow;

/// The fields of survey results as texts: how files and tables show them.
class SurveyFieldTexts
{
public:
    /// \param degreeFormat see AngleText
    /// \param times        of the zone in which times are shown
    explicit SurveyFieldTexts(int degreeFormat, basalt::LocalTimes times = {});

    /// Adds the field to the row.
    void add(CsvRow& row, const SurveyPoint& point, const SurveyColumn& column);

private:
    AngleText m_angles;
    basalt::LocalTimes m_times;
    SolutionTypeNames m_solutions;
    std::string m_loft;
    std::string m_survey;
};
