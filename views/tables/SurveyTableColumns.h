#pragma once

#include <QStringList>

struct SurveyColumn;

// The columns of the survey table: 43 of the survey columns, in the table's own order.

/// The keys of all columns, as in SurveyColumns.h.
[[nodiscard]] const QStringList& surveyTableKeys();

/// Their captions, translated. That of "base_station_id" is "base id" here.
[[nodiscard]] QStringList surveyTableCaptions();

/// What a column shows.
/// \param column counted from 0, in the order of `surveyTableKeys`
[[nodiscard]] const SurveyColumn& surveyTableColumn(int column);
