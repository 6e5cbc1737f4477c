#pragma once

#include "exchange/CsvRow.h"
#include "exchange/SurveyFieldTexts.h"

#include <QStringList>

#include <vector>

/// Survey points as lines of a CSV file with chosen columns.
class SurveyRowWriter
{
public:
    /// \param captions     of the columns, in their order; an unknown one has an empty column
    /// \param degreeFormat see AngleText
    SurveyRowWriter(const QStringList& captions, int degreeFormat);

    /// The line of the captions, with its end; valid until the next call, as all lines are.
    [[nodiscard]] std::string_view heading();

    /// The point's line, with its end; empty when line or point number is not among the columns.
    [[nodiscard]] std::string_view row(const SurveyPoint& point);

private:
    QStringList m_captions;
    std::vector<const SurveyColumn*> m_columns; ///< null for an unknown caption
    bool m_hasNumbers;                          ///< line and point number are among the columns
    SurveyFieldTexts m_fields;
    CsvRow m_row;
};
