#include "quality/QualityResultModel.h"

#include "quality/ResultModel.h"

#include <array>

namespace {

using Column = ResultColumn<QualityRow>;

// The whole table: one line here is one column on the screen and in a file.
constexpr std::array kColumns{
    Column{QT_TRANSLATE_NOOP("ResultModel", "Point Num"), result_text::pointNumber<QualityRow>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Line Num"), result_text::lineNumber<QualityRow>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Describe"),
           [](const QualityRow& row) { return row.text(); },
           [](const QualityRow& row) { return row.explanationText(); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Value"),
           [](const QualityRow& row) { return result_text::number(row.value); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Limit"),
           [](const QualityRow& row) { return result_text::number(row.limit); }},
};

} // namespace

std::unique_ptr<QAbstractTableModel> makeQualityResultModel(std::vector<QualityRow> rows)
{
    return std::make_unique<ResultModel<QualityRow>>(kColumns, std::move(rows));
}
