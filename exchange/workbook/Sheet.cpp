#include "exchange/workbook/Sheet.h"

#include "exchange/workbook/CellText.h"
#include "exchange/workbook/Workbook.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

using Role = CellFormats::Role;

constexpr std::uint32_t kMostRows = LXW_ROW_MAX;
constexpr double kFilterButton = 3; // characters
constexpr double kMargin = 1.5;     // characters
constexpr double kNarrowest = 7;
constexpr double kWidest = 60;
constexpr double kTimeWidth = 19;
constexpr double kLineHeight = 13.5;  // points
constexpr std::size_t kMostOnA4 = 20; // columns

double numberWidth(double value, int decimals)
{
    return QString::number(value, 'f', decimals).size();
}

lxw_row_t firstRow()
{
    return 1;
}

} // namespace

Sheet::Sheet(Workbook& book, const QString& name, std::vector<SheetColumn> columns,
             const SheetLook& look)
    : m_book(book), m_name(name), m_columns(std::move(columns)), m_look(look)
{
    for (const SheetColumn& column : m_columns)
        m_formats.push_back(book.formats().get(Role::Body, column.form, column.decimals));
    begin(m_name);
}

void Sheet::begin(const QString& name)
{
    m_sheet = m_book.addWorksheet(name, m_sheetName);
    m_widths.assign(m_columns.size(), {});
    m_row = 0;
    m_column = 0;
    if (m_sheet != nullptr)
        writeHeadings();
}

void Sheet::writeHeadings()
{
    lxw_format* const format = m_book.formats().get(Role::Heading);
    int lines = 1;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        lines = std::max(lines, lineCount(m_columns[i].caption, widthOf(i) - kMargin));
    m_book.check(worksheet_set_row(m_sheet, 0, lines * kLineHeight + 4, nullptr));
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        m_book.check(worksheet_write_string(m_sheet, 0, static_cast<lxw_col_t>(i),
                                            m_columns[i].caption.toUtf8().constData(), format));
    worksheet_freeze_panes(m_sheet, firstRow(), static_cast<lxw_col_t>(m_look.frozenColumns));
    setUpPrinting();
    m_row = firstRow();
}

void Sheet::setUpPrinting()
{
    constexpr std::uint8_t kA3 = 8;
    constexpr std::uint8_t kA4 = 9;
    worksheet_set_landscape(m_sheet);
    worksheet_set_paper(m_sheet, m_columns.size() > kMostOnA4 ? kA3 : kA4);
    worksheet_fit_to_pages(m_sheet, 1, 0);
    m_book.check(worksheet_repeat_rows(m_sheet, 0, 0));
    m_book.setFooter(m_sheet);
}

Sheet& Sheet::text(std::string_view utf8)
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

Sheet& Sheet::text(const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    return this->text(std::string_view(utf8.constData(), static_cast<std::size_t>(utf8.size())));
}

Sheet& Sheet::number(double value)
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

Sheet& Sheet::time(std::int64_t milliseconds)
{
    return number(m_book.excelTime(milliseconds));
}

Sheet& Sheet::blank()
{
    if (!beginCell())
        return *this;
    m_book.check(worksheet_write_blank(m_sheet, m_row, m_column, m_formats[m_column]));
    ++m_column;
    return *this;
}

bool Sheet::beginCell()
{
    Q_ASSERT(m_column < m_columns.size());
    if (m_row == kMostRows && m_column == 0) {
        finish();
        begin(QStringLiteral("%1 (%2)").arg(m_name).arg(++m_part));
    }
    return m_sheet != nullptr;
}

void Sheet::endRow()
{
    while (m_sheet != nullptr && m_column < m_columns.size())
        blank();
    m_column = 0;
    ++m_row;
    ++m_rowCount;
}

void Sheet::colourAbove(std::size_t column, double limit, Colour colour)
{
    m_rules.push_back({column,
                       QStringLiteral("=AND(ISNUMBER(%1),ABS(%1)>") +
                           QString::number(limit, 'g', 15) + QLatin1Char(')'),
                       colour});
}

void Sheet::colourBelow(std::size_t column, double limit, Colour colour)
{
    m_rules.push_back({column,
                       QStringLiteral("=AND(ISNUMBER(%1),%1<") + QString::number(limit, 'g', 15) +
                           QLatin1Char(')'),
                       colour});
}

void Sheet::colourText(std::size_t column, const QString& text, Colour colour)
{
    QString quoted = text;
    quoted.replace(QLatin1Char('"'), QLatin1String("\"\""));
    m_rules.push_back({column, QStringLiteral("=%1=\"") + quoted + QLatin1Char('"'), colour});
}

void Sheet::addPickList(std::size_t column, const QStringList& choices)
{
    m_pickLists.push_back({column, choices});
}

CellRange Sheet::cells(std::size_t column) const
{
    return {m_sheetName, firstRow(), std::max(m_row, firstRow() + 1) - 1,
            static_cast<std::uint16_t>(column)};
}

void Sheet::finish()
{
    if (m_sheet == nullptr)
        return;
    setWidths();
    const auto lastColumn = static_cast<lxw_col_t>(m_columns.size() - 1);
    if (m_look.hasFilter)
        m_book.check(
            worksheet_autofilter(m_sheet, 0, 0, std::max(m_row, firstRow() + 1) - 1, lastColumn));
    if (m_row > firstRow()) {
        applyRules();
        applyPickLists();
    }
}

double Sheet::widthOf(std::size_t index) const
{
    const SheetColumn& column = m_columns[index];
    if (column.width > 0)
        return column.width;
    const Width& cells = m_widths[index];
    double width = std::max(kNarrowest, cells.text);
    if (column.form == SheetColumn::Form::Time)
        width = std::max(width, kTimeWidth);
    else
        width = std::max({width, numberWidth(cells.smallest, column.decimals),
                          numberWidth(cells.largest, column.decimals)});
    width =
        std::max(width, longestWord(column.caption) * 1.1 + (m_look.hasFilter ? kFilterButton : 0));
    return std::min(width, kWidest) + kMargin;
}

void Sheet::setWidths()
{
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        const auto column = static_cast<lxw_col_t>(i);
        m_book.check(worksheet_set_column(m_sheet, column, column, widthOf(i), nullptr));
    }
}

void Sheet::applyRules()
{
    for (const Rule& rule : m_rules) {
        const auto column = static_cast<lxw_col_t>(rule.column);
        std::array<char, LXW_MAX_CELL_NAME_LENGTH> cell{};
        lxw_rowcol_to_cell(cell.data(), firstRow(), column);
        QByteArray formula = rule.condition.arg(QLatin1String(cell.data())).toUtf8();
        lxw_conditional_format format{};
        format.type = LXW_CONDITIONAL_TYPE_FORMULA;
        format.value_string = formula.data();
        format.format = m_book.formats().get(rule.colour);
        m_book.check(worksheet_conditional_format_range(m_sheet, firstRow(), column, m_row - 1,
                                                        column, &format));
    }
}

void Sheet::applyPickLists()
{
    for (const PickList& list : m_pickLists) {
        std::vector<QByteArray> texts;
        for (const QString& choice : list.choices)
            texts.push_back(choice.toUtf8());
        std::vector<char*> choices;
        for (QByteArray& text : texts)
            choices.push_back(text.data());
        choices.push_back(nullptr);
        lxw_data_validation validation{};
        validation.validate = LXW_VALIDATION_TYPE_LIST;
        validation.value_list = choices.data();
        const auto column = static_cast<lxw_col_t>(list.column);
        m_book.check(worksheet_data_validation_range(m_sheet, firstRow(), column, m_row - 1, column,
                                                     &validation));
    }
}
