#include "quality/RepeatResultModel.h"

#include "quality/ResultModel.h"

#include <array>

namespace {

using Column = ResultColumn<RepeatRow>;

QString differenceText(const RepeatRow& row)
{
    if (!row.difference)
        return {};
    const auto& [north, east, height] = *row.difference;
    return QCoreApplication::translate("ResultModel",
                                       "From what it repeats: north %1, east %2, height %3.")
        .arg(result_text::number(north), result_text::number(east), result_text::number(height));
}

// The whole table: one line here is one column on the screen and in a file.
constexpr std::array kColumns{
    Column{QT_TRANSLATE_NOOP("ResultModel", "Point Num"), result_text::pointNumber<RepeatRow>,
           differenceText},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Line Num"), result_text::lineNumber<RepeatRow>,
           differenceText},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Type"),
           [](const RepeatRow& row) { return result_text::kind(row.isReceiver); }, differenceText},
    Column{QT_TRANSLATE_NOOP("ResultModel", "North"),
           [](const RepeatRow& row) { return result_text::number(row.north); }, differenceText},
    Column{QT_TRANSLATE_NOOP("ResultModel", "East"),
           [](const RepeatRow& row) { return result_text::number(row.east); }, differenceText},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Height"),
           [](const RepeatRow& row) { return result_text::number(row.elevation); }, differenceText},
};

} // namespace

std::unique_ptr<QAbstractTableModel> makeRepeatResultModel(std::vector<RepeatRow> rows)
{
    return std::make_unique<ResultModel<RepeatRow>>(kColumns, std::move(rows));
}
