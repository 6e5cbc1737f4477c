#include "quality/ResurveyResultModel.h"

#include "quality/ResultModel.h"

#include <array>

namespace {

using Column = ResultColumn<ResurveyRow>;
using Position = ResurveyRow::Position;

QString pairText(const ResurveyRow& row)
{
    if (row.pairedNumber.empty())
        return {};
    return QCoreApplication::translate("ResultModel", "Its resurvey is %1.")
        .arg(lum::toQString(writtenPointNumber(row.pairedNumber)));
}

template <std::size_t axis>
QString toleranceText(const ResurveyRow& row)
{
    if (!row.isOut[axis])
        return {};
    return QCoreApplication::translate("ResultModel", "Beyond the tolerance of %1 m.")
        .arg(result_text::number(row.toleranceM[axis]));
}

template <Position ResurveyRow::*position, std::size_t axis>
constexpr Column coordinate(const char* caption)
{
    return {caption,
            [](const ResurveyRow& row) { return result_text::number((row.*position)[axis]); }};
}

template <std::size_t axis>
constexpr Column difference(const char* caption)
{
    Column column = coordinate<&ResurveyRow::difference, axis>(caption);
    column.toolTip = toleranceText<axis>;
    column.isFault = [](const ResurveyRow& row) { return row.isOut[axis]; };
    return column;
}

// The whole table: one line here is one column on the screen and in a file.
constexpr std::array kColumns{
    Column{QT_TRANSLATE_NOOP("ResultModel", "Point Num"), result_text::pointNumber<ResurveyRow>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Line Num"), result_text::lineNumber<ResurveyRow>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Describe"),
           [](const ResurveyRow& row) { return row.text(); }, pairText},
    coordinate<&ResurveyRow::own, 0>(QT_TRANSLATE_NOOP("ResultModel", "north")),
    coordinate<&ResurveyRow::own, 1>(QT_TRANSLATE_NOOP("ResultModel", "east")),
    coordinate<&ResurveyRow::own, 2>(QT_TRANSLATE_NOOP("ResultModel", "elevation")),
    coordinate<&ResurveyRow::again, 0>(QT_TRANSLATE_NOOP("ResultModel", "re north")),
    coordinate<&ResurveyRow::again, 1>(QT_TRANSLATE_NOOP("ResultModel", "re east")),
    coordinate<&ResurveyRow::again, 2>(QT_TRANSLATE_NOOP("ResultModel", "re elevation")),
    difference<0>(QT_TRANSLATE_NOOP("ResultModel", "north diff")),
    difference<1>(QT_TRANSLATE_NOOP("ResultModel", "east diff")),
    difference<2>(QT_TRANSLATE_NOOP("ResultModel", "elevation diff")),
};

} // namespace

std::unique_ptr<QAbstractTableModel> makeResurveyResultModel(std::vector<ResurveyRow> rows)
{
    return std::make_unique<ResultModel<ResurveyRow>>(kColumns, std::move(rows));
}
