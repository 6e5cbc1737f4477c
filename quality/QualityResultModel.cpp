#include "quality/QualityResultModel.h"

#include "basalt_utilities/Numbers.h"
#include "model/PointNumber.h"
#include "quality/ResultModel.h"

#include <array>

namespace {

constexpr int kDecimals = 3;

QString number(double value)
{
    return QString::fromStdString(basalt::formatFixed(value, kDecimals));
}

using Column = ResultColumn<QualityRow>;

// The whole table: one line here is one column on the screen and in a file.
constexpr std::array kColumns{
    Column{
        QT_TRANSLATE_NOOP("ResultModel", "Point Num"),
        [](const QualityRow& row) { return lum::toQString(writtenPointNumber(row.pointNumber)); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Line Num"),
           [](const QualityRow& row) { return lum::toQString(row.lineNumber); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Describe"),
           [](const QualityRow& row) { return row.text(); },
           [](const QualityRow& row) { return row.explanationText(); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Value"),
           [](const QualityRow& row) { return number(row.value); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Limit"),
           [](const QualityRow& row) { return number(row.limit); }},
};

} // namespace

std::unique_ptr<QAbstractTableModel> makeQualityResultModel(std::vector<QualityRow> rows)
{
    return std::make_unique<ResultModel<QualityRow>>(kColumns, std::move(rows));
}
