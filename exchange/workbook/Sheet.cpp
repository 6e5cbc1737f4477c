#include "exchange/workbook/Sheet.h"

#include "exchange/workbook/CellText.h"
#include "exchange/workbook/Workbook.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double kFilterButton = 3; // characters
constexpr double kMargin = 2.5;     // characters
constexpr double kNarrowest = 7;
constexpr double kBold = 1.1; // bold letters are wider
constexpr double kWidest = 60;
constexpr double kTimeWidth = 19;
constexpr double kDateWidth = 10;

double numberWidth(double value, const SheetColumn& column)
{
    if (column.decimals == CellFormats::kAsNeeded)
        return QString::number(value, 'g', 11).size();
    const bool isPercent = column.form == SheetColumn::Form::Percent;
    return QString::number(isPercent ? value * 100 : value, 'f', column.decimals).size() +
           (isPercent ? 1 : 0);
}

} // namespace

Sheet::Sheet(Workbook& book, const QString& name, std::vector<SheetColumn> columns,
             const SheetLook& look)
    : RowCells(book), m_name(name), m_look(look)
{
    setColumns(std::move(columns));
    begin(m_name);
}

void Sheet::begin(const QString& name)
{
    m_sheet = m_book.addWorksheet(name, m_sheetName);
    if (m_sheet == nullptr)
        return;
    m_row = 0;
    m_endOfTable = 0;
    m_widths.assign(m_columns.size(), {});
    writeTitle();
    writeGroups();
    writeHeadings([this](std::size_t column) { return widthOf(column) - kMargin; });
    worksheet_freeze_panes(m_sheet, firstRow(), static_cast<lxw_col_t>(m_look.frozenColumns));
    // Line and point numbers are texts and look like numbers: that is no mistake.
    m_book.check(
        worksheet_ignore_errors(m_sheet, LXW_IGNORE_NUMBER_STORED_AS_TEXT, "A1:XFD1048576"));
}

std::uint32_t Sheet::firstRow() const
{
    return 1U + (m_look.title.isEmpty() ? 0U : 1U) + (m_look.groups.empty() ? 0U : 1U);
}

std::uint32_t Sheet::tableEnd() const
{
    return std::max(m_endOfTable != 0 ? m_endOfTable : m_row, firstRow() + 1);
}

void Sheet::writeTitle()
{
    if (m_look.title.isEmpty())
        return;
    constexpr double kHeight = 26; // points
    m_book.check(worksheet_set_row(m_sheet, m_row, kHeight, nullptr));
    writeAcross(0, m_columns.size(), m_look.title,
                m_book.formats().get(CellFormats::Role::TableTitle));
    ++m_row;
}

void Sheet::writeGroups()
{
    if (m_look.groups.empty())
        return;
    std::size_t first = 0;
    for (const SheetGroup& group : m_look.groups) {
        const auto count = static_cast<std::size_t>(group.columns);
        writeAcross(first, count, group.caption, m_book.formats().get(CellFormats::Role::Heading));
        first += count;
    }
    ++m_row;
}

void Sheet::writeAcross(std::size_t first, std::size_t count, const QString& caption,
                        lxw_format* format)
{
    const auto from = static_cast<lxw_col_t>(first);
    const QByteArray text = caption.toUtf8();
    if (count > 1)
        m_book.check(worksheet_merge_range(m_sheet, m_row, from, m_row,
                                           static_cast<lxw_col_t>(first + count - 1),
                                           text.constData(), format));
    else
        m_book.check(worksheet_write_string(m_sheet, m_row, from, text.constData(), format));
}

void Sheet::continueOn()
{
    finish();
    begin(QStringLiteral("%1 (%2)").arg(m_name).arg(++m_part));
}

/// On one page wide when that can be read; otherwise the pages stand side by side, each with the
/// columns that stay in view.
void Sheet::setUpPrinting()
{
    constexpr std::uint8_t kA3 = 8;
    constexpr std::uint8_t kA4 = 9;
    constexpr double kMostOnA4 = 260; // characters
    constexpr double kMostOnA3 = 380;
    double width = 0;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        width += widthOf(i);
    worksheet_set_landscape(m_sheet);
    worksheet_set_paper(m_sheet, width > kMostOnA4 ? kA3 : kA4);
    worksheet_fit_to_pages(m_sheet, static_cast<std::uint16_t>(std::ceil(width / kMostOnA3)), 0);
    m_book.check(worksheet_repeat_rows(m_sheet, 0, firstRow() - 1));
    if (width > kMostOnA3 && m_look.frozenColumns > 0) {
        worksheet_print_across(m_sheet);
        m_book.check(
            worksheet_repeat_columns(m_sheet, 0, static_cast<lxw_col_t>(m_look.frozenColumns - 1)));
    }
    constexpr double kPaperEdge = 0.4; // inches
    constexpr double kFoot = 0.7;
    worksheet_set_margins(m_sheet, kPaperEdge, kPaperEdge, kPaperEdge, kFoot);
    m_book.setFooter(m_sheet);
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

void Sheet::colourFilled(std::size_t column, Colour colour)
{
    m_rules.push_back({column, QStringLiteral("=LEN(%1)>0"), colour});
}

void Sheet::addPickList(std::size_t column, const QStringList& choices)
{
    m_pickLists.push_back({column, choices});
}

void Sheet::endTable()
{
    finishTable();
    m_endOfTable = m_row;
    if (m_row < LXW_ROW_MAX)
        ++m_row;
}

CellRange Sheet::cells(std::size_t column) const
{
    return {m_sheetName, firstRow(), tableEnd() - 1, static_cast<std::uint16_t>(column)};
}

void Sheet::finish()
{
    if (m_sheet == nullptr)
        return;
    setWidths();
    setUpPrinting();
    if (m_endOfTable == 0)
        finishTable();
}

/// The library takes no range that ends above the last row that was written.
void Sheet::finishTable()
{
    if (m_sheet == nullptr)
        return;
    const auto lastColumn = static_cast<lxw_col_t>(m_columns.size() - 1);
    if (m_look.hasFilter)
        m_book.check(worksheet_autofilter(m_sheet, firstRow() - 1, 0, tableEnd() - 1, lastColumn));
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
    else if (column.form == SheetColumn::Form::Date)
        width = std::max(width, kDateWidth);
    else
        width = std::max(
            {width, numberWidth(cells.smallest, column), numberWidth(cells.largest, column)});
    width = std::max(width,
                     longestWord(column.caption) * kBold + (m_look.hasFilter ? kFilterButton : 0));
    return std::min(std::max(width, widthOfGroup(index)), kWidest) + kMargin;
}

double Sheet::widthOfGroup(std::size_t column) const
{
    std::size_t end = 0;
    for (const SheetGroup& group : m_look.groups) {
        end += static_cast<std::size_t>(group.columns);
        if (column < end)
            return textWidth(group.caption.toStdString()) * kBold / group.columns;
    }
    return 0;
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
        m_book.check(worksheet_conditional_format_range(m_sheet, firstRow(), column, tableEnd() - 1,
                                                        column, &format));
    }
}

void Sheet::applyPickLists()
{
    for (const PickList& list : m_pickLists) {
        std::vector<QByteArray> texts;
        texts.reserve(static_cast<std::size_t>(list.choices.size()));
        for (const QString& choice : list.choices)
            texts.push_back(choice.toUtf8());
        std::vector<char*> choices;
        choices.reserve(texts.size() + 1);
        for (QByteArray& text : texts)
            choices.push_back(text.data());
        choices.push_back(nullptr);
        lxw_data_validation validation{};
        validation.validate = LXW_VALIDATION_TYPE_LIST;
        validation.value_list = choices.data();
        const auto column = static_cast<lxw_col_t>(list.column);
        m_book.check(worksheet_data_validation_range(m_sheet, firstRow(), column, tableEnd() - 1,
                                                     column, &validation));
    }
}
