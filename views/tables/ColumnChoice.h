#pragma once

#include <QStringList>

class IDictionary;

// The columns of the survey table as the user chose them, by their keys (SurveyTableColumns.h). The
// settings hold the order of all and which of them are hidden.

struct ColumnChoice
{
    QStringList order;  ///< all columns
    QStringList hidden; ///< some of them
};

/// What the settings say. Unknown and repeated keys are passed over, columns that they do not know
/// stand at the end, and at least one column is shown.
[[nodiscard]] ColumnChoice columnChoice(const IDictionary& settings);

/// Puts the choice into `settings`; saving them and announcing it ("ON_SURVEY_COLUMNS_CHANGED") is
/// the caller's task.
void setColumnChoice(IDictionary& settings, const ColumnChoice& choice);
