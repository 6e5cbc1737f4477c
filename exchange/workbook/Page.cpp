#include "exchange/workbook/Page.h"

#include "exchange/workbook/CellText.h"
#include "exchange/workbook/Workbook.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>

namespace {

using Role = CellFormats::Role;
using Form = CellFormats::Form;

constexpr double kFirstWidth = 28; // characters
constexpr double kOtherWidth = 12;
constexpr double kWholeWidth = kFirstWidth + (Page::kColumns - 1) * kOtherWidth;
constexpr lxw_col_t kLastColumn = Page::kColumns - 1;
constexpr double kMargin = 1.5;         // characters
constexpr double kLettersADigit = 1.15; // that are as wide, in sentences
constexpr std::uint32_t kRowsOfChart = 16;

/// Of columns on the screen, as Excel has them.
constexpr double pixels(double characters, int columns)
{
    return characters * 7 + columns * 5;
}

} // namespace

Page::Page(Workbook& book, const QString& name) : RowCells(book)
{
    m_sheet = book.addWorksheet(name, m_sheetName);
    if (m_sheet != nullptr)
        setUp();
}

void Page::setUp()
{
    constexpr std::uint8_t kA4 = 9;
    m_book.check(worksheet_set_column(m_sheet, 0, 0, kFirstWidth, nullptr));
    m_book.check(worksheet_set_column(m_sheet, 1, kLastColumn, kOtherWidth, nullptr));
    worksheet_gridlines(m_sheet, LXW_HIDE_ALL_GRIDLINES);
    worksheet_set_portrait(m_sheet);
    worksheet_set_paper(m_sheet, kA4);
    worksheet_fit_to_pages(m_sheet, 1, 1);
    worksheet_center_horizontally(m_sheet);
    m_book.setFooter(m_sheet);
}

void Page::addTitle(const QString& text)
{
    if (m_sheet == nullptr)
        return;
    m_book.check(worksheet_set_row(m_sheet, m_row, 2 * CellFormats::kLineHeight, nullptr));
    m_book.check(worksheet_write_string(m_sheet, m_row, 0, text.toUtf8().constData(),
                                        m_book.formats().get(Role::Title)));
    ++m_row;
}

void Page::addChapter(const QString& text)
{
    if (m_sheet == nullptr)
        return;
    ++m_row;
    lxw_format* const format = m_book.formats().get(Role::Chapter);
    m_book.check(worksheet_set_row(m_sheet, m_row, 1.5 * CellFormats::kLineHeight, nullptr));
    m_book.check(worksheet_write_string(m_sheet, m_row, 0, text.toUtf8().constData(), format));
    for (lxw_col_t column = 1; column <= kLastColumn; ++column) // the line below the heading
        m_book.check(worksheet_write_blank(m_sheet, m_row, column, format));
    ++m_row;
}

/// Without a label, the value has the whole width. Excel does not find the height of joined cells.
void Page::writeLine(const QString& label, const QString& value)
{
    if (m_sheet == nullptr)
        return;
    const lxw_col_t first = label.isEmpty() ? 0 : 1;
    const double width = label.isEmpty() ? kWholeWidth : kWholeWidth - kFirstWidth;
    const int lines = std::max(lineCount(value, (width - 2 * kMargin) * kLettersADigit),
                               lineCount(label, kFirstWidth - kMargin));
    m_book.check(worksheet_set_row(m_sheet, m_row, lines * CellFormats::kLineHeight + 3, nullptr));
    if (!label.isEmpty())
        m_book.check(worksheet_write_string(m_sheet, m_row, 0, label.toUtf8().constData(),
                                            m_book.formats().get(Role::Label)));
    m_book.check(worksheet_merge_range(m_sheet, m_row, first, m_row, kLastColumn,
                                       value.toUtf8().constData(),
                                       m_book.formats().get(Role::Value)));
    ++m_row;
}

void Page::addValue(const QString& label, const QString& value)
{
    writeLine(label, value);
}

void Page::addValue(const QString& label, double value, int decimals)
{
    if (m_sheet == nullptr || !std::isfinite(value))
        return;
    m_book.check(worksheet_write_string(m_sheet, m_row, 0, label.toUtf8().constData(),
                                        m_book.formats().get(Role::Label)));
    m_book.check(worksheet_write_number(m_sheet, m_row, 1, value,
                                        m_book.formats().get(Role::Value, Form::Number, decimals)));
    ++m_row;
}

void Page::addNote(const QString& text)
{
    writeLine({}, text);
}

void Page::beginTable(std::vector<SheetColumn> columns)
{
    Q_ASSERT(columns.size() <= kColumns);
    setColumns(std::move(columns));
    writeHeadings(
        [](std::size_t column) { return (column == 0 ? kFirstWidth : kOtherWidth) - kMargin; });
    m_firstOfTable = m_row;
}

CellRange Page::cells(std::size_t column) const
{
    return {m_sheetName, m_firstOfTable, std::max(m_row, m_firstOfTable + 1) - 1,
            static_cast<std::uint16_t>(column)};
}

void Page::addCharts(const std::vector<Chart>& charts)
{
    if (m_sheet == nullptr || charts.empty())
        return;
    ++m_row;
    const double width = pixels(kWholeWidth, kColumns) / static_cast<double>(charts.size());
    double left = 0;
    for (const Chart& chart : charts) {
        constexpr double kUsualWidth = 480;
        constexpr double kUsualHeight = 288;
        constexpr double kRowHeight = 20;
        lxw_chart_options options{};
        options.x_offset = static_cast<int>(left);
        options.x_scale = (width - 6) / kUsualWidth;
        options.y_scale = (kRowsOfChart - 0.5) * kRowHeight / kUsualHeight;
        if (lxw_chart* const made = m_book.makeChart(chart); made != nullptr)
            m_book.check(worksheet_insert_chart_opt(m_sheet, m_row, 0, made, &options));
        left += width;
    }
    m_row += kRowsOfChart;
}
