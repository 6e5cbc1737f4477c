#include "quality/EmptyPointResultModel.h"

#include "quality/ResultModel.h"

#include <array>

namespace {

using Column = ResultColumn<DesignPoint>;

// The whole table: one line here is one column on the screen and in a file.
constexpr std::array kColumns{
    Column{QT_TRANSLATE_NOOP("ResultModel", "Point Num"),
           [](const DesignPoint& point) { return lum::toQString(point.pointNumber); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Line Num"), result_text::lineNumber<DesignPoint>},
    Column{QT_TRANSLATE_NOOP("ResultModel", "North"),
           [](const DesignPoint& point) { return result_text::number(point.north); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "East"),
           [](const DesignPoint& point) { return result_text::number(point.east); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Elevation"),
           [](const DesignPoint& point) { return result_text::number(point.elevation); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Azimuth"),
           [](const DesignPoint& point) { return result_text::number(point.azimuth); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Type"),
           [](const DesignPoint& point) { return result_text::kind(point.type != 0); }},
    Column{QT_TRANSLATE_NOOP("ResultModel", "Status"),
           [](const DesignPoint& /*point*/) {
               return QCoreApplication::translate("ResultModel", "Not Surveyed");
           }},
};

} // namespace

std::unique_ptr<QAbstractTableModel> makeEmptyPointResultModel(std::vector<DesignPoint> points)
{
    return std::make_unique<ResultModel<DesignPoint>>(kColumns, std::move(points));
}
