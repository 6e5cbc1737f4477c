#include "quality/RepeatChoiceModel.h"

#include "quality/ResultModel.h"

#include <array>
#include <cmath>

namespace {

using Column = ResultColumn<RepeatChoiceRow>;
using Fate = RepeatChoiceRow::Fate;

bool isLeft(const RepeatChoiceRow& row)
{
    return row.fate == Fate::Left;
}

std::string timeText(basalt::LocalTimes& zone, std::int64_t milliseconds)
{
    std::array<char, basalt::LocalTimes::kTextSize> buffer{};
    return milliseconds == 0 ? std::string()
                             : std::string(buffer.data(), zone.write(buffer.data(), milliseconds));
}

QString keptText(const RepeatChoiceRow& row)
{
    if (row.fate == Fate::Unknown)
        return {};
    if (isLeft(row))
        return QCoreApplication::translate("ResultModel", "all: too far apart");
    if (row.kept.empty())
        return QCoreApplication::translate("ResultModel", "mean of %1").arg(row.measured);
    return lum::toQString(writtenPointNumber(row.kept));
}

QString leftToolTip(const RepeatChoiceRow& row)
{
    return isLeft(row)
               ? QCoreApplication::translate("ResultModel",
                                             "The measurements differ by more than the tolerance: "
                                             "the point stays as it is.")
               : QString();
}

/// Of a point that gets one result.
template <class Text>
QString unlessLeft(const RepeatChoiceRow& row, Text text)
{
    return row.fate == Fate::Resolved ? text() : QString();
}

template <double RepeatChoiceRow::*member>
QString length(const RepeatChoiceRow& row)
{
    return result_text::number(row.*member);
}

template <double RepeatChoiceRow::*member>
QString newLength(const RepeatChoiceRow& row)
{
    return unlessLeft(row, [&] { return result_text::number(row.*member); });
}

template <std::string RepeatChoiceRow::*member>
QString newText(const RepeatChoiceRow& row)
{
    return unlessLeft(row, [&] { return lum::toQString(row.*member); });
}

// The whole table: one line here is one column on the screen and in a file.
constexpr std::array kColumns{
    Column{QT_TRANSLATE_NOOP("ResultModel", "Point Num"),
           [](const RepeatChoiceRow& row) { return lum::toQString(row.point); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Line Num"), result_text::lineNumber<RepeatChoiceRow>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Measured"),
           [](const RepeatChoiceRow& row) { return QString::number(row.measured); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Differ"), length<&RepeatChoiceRow::spreadM>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "In height"), length<&RepeatChoiceRow::heightSpreadM>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Stays"), keptText, leftToolTip, isLeft},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Time"), newText<&RepeatChoiceRow::time>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Surveyor"), newText<&RepeatChoiceRow::surveyor>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "HRMS"), newLength<&RepeatChoiceRow::hrmsM>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Point moves"), newLength<&RepeatChoiceRow::movedM>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Up by"), newLength<&RepeatChoiceRow::heightM>},
};

Fate fateOf(const RepeatedPoint& point, const RepeatChoice& choice)
{
    if (!choice.isWhole())
        return Fate::Unknown;
    return choice.leaves(point) ? Fate::Left : Fate::Resolved;
}

} // namespace

std::vector<RepeatChoiceRow> repeatChoiceRows(const std::vector<RepeatedPoint>& points,
                                              const RepeatChoice& choice, basalt::LocalTimes zone,
                                              double planeUnitM)
{
    std::vector<RepeatChoiceRow> rows;
    rows.reserve(points.size());
    for (const RepeatedPoint& point : points) {
        const SurveyPoint& present = point.own != nullptr ? *point.own : *point.measured.front();
        const bool isMean = choice.rule == RepeatChoice::Rule::WeightedMean;
        const SurveyPoint result = choice.resultOf(point);
        rows.push_back(
            {present.pointNumber, point.name.line, point.name.point, point.measured.size(),
             point.spreadM, point.heightSpreadM, fateOf(point, choice),
             isMean ? std::string() : choice.bestOf(point).pointNumber,
             isMean ? std::string() : timeText(zone, result.dateTime),
             isMean ? std::string() : result.surveyor, result.horizontalAccuracy,
             std::hypot(result.north - present.north, result.east - present.east) * planeUnitM,
             result.elevation - present.elevation});
    }
    return rows;
}

std::unique_ptr<QAbstractTableModel> makeRepeatChoiceModel(std::vector<RepeatChoiceRow> rows)
{
    return std::make_unique<ResultModel<RepeatChoiceRow>>(kColumns, std::move(rows));
}
