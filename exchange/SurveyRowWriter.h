#pragma once

#include "basalt_utilities/LocalTimes.h"
#include "exchange/AngleText.h"
#include "exchange/CsvRow.h"
#include "exchange/SolutionTypeNames.h"
#include "exchange/SurveyCsvColumns.h"

#include <QStringList>

#include <vector>

/// Survey points as lines of a CSV file with chosen columns.
class SurveyRowWriter
{
public:
    /// \param captions     of the columns, in their order; one that no column has stays empty
    /// \param degreeFormat see AngleText
    SurveyRowWriter(const QStringList& captions, int degreeFormat);

    /// The line of the captions, with its end; valid until the next call, as all lines are.
    [[nodiscard]] std::string_view heading();

    /// The point's line, with its end; nothing when the columns lack line or point number.
    [[nodiscard]] std::string_view row(const SurveyPoint& point);

private:
    void addField(const SurveyPoint& point, const SurveyCsvColumn& column);

    QStringList m_captions;
    std::vector<const SurveyCsvColumn*> m_columns; ///< null for an unknown caption
    bool m_isIdentified;                           ///< by line and point number
    AngleText m_angles;
    basalt::LocalTimes m_times;
    SolutionTypeNames m_solutions;
    std::string m_loft;
    std::string m_survey;
    CsvRow m_row;
};
