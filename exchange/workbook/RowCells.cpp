#include "exchange/workbook/RowCells.h"

#include "exchange/workbook/CellText.h"
#include "exchange/workbook/Workbook.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr std::uint32_t kMostRows = LXW_ROW_MAX;

} // namespace

void RowCells::setColumns(std::vector<SheetColumn> columns)
{
    m_columns = std::move(columns);
    m_widths.assign(m_columns.size(), {});
    m_formats.clear();
    for (const SheetColumn& column : m_columns)
        m_formats.push_back(
            m_book.formats().get(CellFormats::Role::Body, column.form, column.decimals));
}

int RowCells::headingLines(std::size_t column, double width) const
{
    constexpr double kBold = 1.1; // bold letters are wider
    return lineCount(m_columns[column].caption, width / kBold);
}

void RowCells::writeHeadingRow(int lines)
{
    if (m_sheet == nullptr)
        return;
    m_book.check(worksheet_set_row(m_sheet, m_row, lines * CellFormats::kLineHeight + 4, nullptr));
    lxw_format* const format = m_book.formats().get(CellFormats::Role::Heading);
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_book.check(worksheet_write_string(m_sheet, m_row, static_cast<lxw_col_t>(i),
                                            m_columns[i].caption.toUtf8().constData(), format));
    ++m_row;
}

RowCells& RowCells::text(std::string_view utf8)
{
    if (utf8.empty())
        return blank();
    if (!beginCell())
        return *this;
    toCellText(utf8, m_text);
    m_book.check(
        worksheet_write_string(m_sheet, m_row, m_column, m_text.c_str(), m_formats[m_column]));
    Width& width = m_widths[m_column];
    width.text = std::max(width.text, textWidth(m_text));
    ++m_column;
    return *this;
}

RowCells& RowCells::text(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return this->text(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

RowCells& RowCells::number(double value)
{
    if (!std::isfinite(value)) // the library would write it, and damage the file
        return blank();
    if (!beginCell())
        return *this;
    m_book.check(worksheet_write_number(m_sheet, m_row, m_column, value, m_formats[m_column]));
    Width& width = m_widths[m_column];
    width.smallest = std::min(width.smallest, value);
    width.largest = std::max(width.largest, value);
    ++m_column;
    return *this;
}

RowCells& RowCells::time(std::int64_t milliseconds)
{
    return number(m_book.excelTime(milliseconds));
}

RowCells& RowCells::day(std::int64_t days)
{
    return number(Workbook::excelDay(static_cast<double>(days)));
}

RowCells& RowCells::blank()
{
    if (!beginCell())
        return *this;
    m_book.check(worksheet_write_blank(m_sheet, m_row, m_column, m_formats[m_column]));
    ++m_column;
    return *this;
}

bool RowCells::beginCell()
{
    Q_ASSERT(m_column < m_columns.size());
    if (m_row == kMostRows && m_column == 0)
        continueOn();
    return m_sheet != nullptr;
}

void RowCells::endRow()
{
    while (m_sheet != nullptr && m_column < m_columns.size())
        blank();
    m_column = 0;
    ++m_row;
    ++m_rowCount;
}
