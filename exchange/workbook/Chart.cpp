#include "exchange/workbook/Chart.h"

#include "exchange/workbook/ChartMaking.h"

#include <xlsxwriter.h>

#include <array>

namespace {

// Their greys differ, too.
constexpr std::array<lxw_color_t, 6> kColours{0x2F5D8C, 0xE3A04F, 0x7FB38A,
                                              0xB9A5CC, 0x8C3F3F, 0xD9CF8A};
constexpr lxw_color_t kGridLines = 0xD9D9D9;

std::uint8_t typeOf(Chart::Kind kind)
{
    switch (kind) {
    case Chart::Kind::Columns:
        return LXW_CHART_COLUMN;
    case Chart::Kind::StackedColumns:
        return LXW_CHART_COLUMN_STACKED;
    case Chart::Kind::Bars:
        return LXW_CHART_BAR;
    case Chart::Kind::Lines:
        return LXW_CHART_LINE;
    }
    return LXW_CHART_NONE;
}

void setRange(lxw_chart_series* series, const CellRange& range,
              void (*set)(lxw_chart_series*, const char*, lxw_row_t, lxw_col_t, lxw_row_t,
                          lxw_col_t))
{
    set(series, range.sheet.toUtf8().constData(), range.firstRow, range.column, range.lastRow,
        range.column);
}

void addSeries(lxw_chart* chart, const Chart::Series& series, bool isLine, lxw_color_t colour)
{
    lxw_chart_series* const made = chart_add_series(chart, nullptr, nullptr);
    if (made == nullptr)
        return;
    setRange(made, series.categories, chart_series_set_categories);
    setRange(made, series.values, chart_series_set_values);
    if (!series.name.isEmpty())
        chart_series_set_name(made, series.name.toUtf8().constData());
    lxw_chart_line line{};
    line.color = colour;
    line.width = 2;
    lxw_chart_fill fill{};
    fill.color = colour;
    if (isLine)
        chart_series_set_line(made, &line);
    else
        chart_series_set_fill(made, &fill);
}

void nameAxis(lxw_chart_axis* axis, const QString& name)
{
    if (!name.isEmpty())
        chart_axis_set_name(axis, name.toUtf8().constData());
    lxw_chart_font font{};
    font.size = 9;
    font.bold = LXW_FALSE;
    chart_axis_set_name_font(axis, &font);
    chart_axis_set_num_font(axis, &font);
    lxw_chart_line line{};
    line.color = kGridLines;
    chart_axis_major_gridlines_set_line(axis, &line);
}

} // namespace

lxw_chart* makeChart(lxw_workbook* book, const Chart& chart)
{
    lxw_chart* const made = workbook_add_chart(book, typeOf(chart.kind));
    if (made == nullptr)
        return nullptr;
    const bool isLine = chart.kind == Chart::Kind::Lines;
    std::size_t next = 0;
    for (const Chart::Series& series : chart.series)
        addSeries(made, series, isLine, kColours[next++ % kColours.size()]);
    lxw_chart_font font{};
    font.size = 12;
    chart_title_set_name(made, chart.title.toUtf8().constData());
    chart_title_set_name_font(made, &font);
    if (chart.series.size() < 2)
        chart_legend_set_position(made, LXW_CHART_LEGEND_NONE);
    else
        chart_legend_set_position(made, LXW_CHART_LEGEND_BOTTOM);
    const bool isLying = chart.kind == Chart::Kind::Bars;
    lxw_chart_axis* const categories = isLying ? made->y_axis : made->x_axis;
    lxw_chart_axis* const values = isLying ? made->x_axis : made->y_axis;
    nameAxis(categories, chart.categoryAxis);
    nameAxis(values, chart.valueAxis);
    if (chart.hasDays)
        chart_axis_set_num_format(categories, "yyyy-mm-dd");
    if (isLying) { // the first category on top, and yet the numbers at the foot
        chart_axis_set_reverse(categories);
        chart_axis_set_interval_unit(categories, 1); // each has its name, however tall the font
        chart_axis_set_label_position(values, LXW_CHART_AXIS_LABEL_POSITION_HIGH);
    }
    return made;
}
