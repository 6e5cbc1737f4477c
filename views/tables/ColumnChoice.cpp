#include "views/tables/ColumnChoice.h"

#include "views/tables/SurveyTableColumns.h"

ColumnChoice columnChoice(const IDictionary& /*settings*/)
{
    return {surveyTableKeys(), {}};
}

void setColumnChoice(IDictionary& /*settings*/, const ColumnChoice& /*choice*/) {}
