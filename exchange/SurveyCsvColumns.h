#pragma once

#include "model/SurveyColumns.h"

#include <QString>

/// How a survey column is written to a CSV file and read from it.
struct SurveyCsvColumn
{
    enum class Form
    {
        Text,
        PointNumber, ///< as it is written, see PointNumber.h
        PointMark,   ///< "R", or "S" for 0
        Angle,       ///< see AngleText.h
        Fixed,
        Age, ///< six significant digits; read without its decimals
        Integer,
        Offset, ///< an integer, of which decimals are cut off
        Time,
        MeasureMode, ///< "survey", or "loft" for 0
        SolutionType,
    };

    const SurveyColumn* column = nullptr;
    Form form = Form::Text;
    int decimals = 0; ///< of `Fixed`
    bool isRead = true;
};

/// All columns, in the order of `surveyColumns()`.
[[nodiscard]] const std::array<SurveyCsvColumn, kSurveyColumnCount>& surveyCsvColumns();

/// The column of a translated caption; null when there is none.
[[nodiscard]] const SurveyCsvColumn* surveyCsvColumn(const QString& caption);

/// Translated: the name of a measuring mode, 0 for stake-out.
[[nodiscard]] QString measureModeText(int mode);
