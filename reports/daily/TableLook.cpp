#include "reports/daily/TableLook.h"

#include "map/sheet/SheetText.h"
#include "reports/daily/PageText.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <numeric>

namespace {

using pagetext::kPadding;

// pixels of 1/96 inch
constexpr double kUsualSize = 10; // of letters
constexpr double kLeastSize = 6;
constexpr double kMostName = 150;
constexpr double kLeastName = 90;
constexpr double kMostSentence = 300;
constexpr double kLeastSentence = 200;

constexpr int kHeadingLines = 3;
constexpr int kMostMeasured = 100; // letters of a cell
constexpr int kNameLines = 2;      // cells of more lines are sentences

bool isSentence(const DailyTable::Column& column)
{
    return column.lines > kNameLines;
}

double sumOf(const std::vector<double>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0.0);
}

/// The width at which no word of a heading is cut, and all of them have room.
double headingWidth(const QString& text, const QFont& font)
{
    const QFontMetricsF metrics(font);
    double width = 0;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        width = std::max(width, metrics.horizontalAdvance(word));
    while (width < kMostName &&
           wrapped(text, font, width, kHeadingLines + 1).size() > kHeadingLines)
        ++width;
    return std::min(width, kMostName);
}

/// As wide as the cells are in one line; names and sentences up to a limit.
std::vector<double> wantedWidths(const DailyTable& table, double size)
{
    const QFont font = sheetFont(size, true);
    const QFontMetricsF metrics(font);
    std::vector<double> widths;
    widths.reserve(table.columns.size());
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const DailyTable::Column& column = table.columns[i];
        double widest = 0;
        for (const QStringList& row : table.rows)
            widest = std::max(widest, metrics.horizontalAdvance(
                                          row.value(static_cast<int>(i)).left(kMostMeasured)));
        if (!column.isNumber)
            widest = std::min(widest, isSentence(column) ? kMostSentence : kMostName);
        widths.push_back(std::max(widest, headingWidth(column.caption, font)) + 2 * kPadding + 1);
    }
    return widths;
}

/// The same with names and sentences that are shortened as far as they may.
std::vector<double> leastWidths(const DailyTable& table, std::vector<double> widths)
{
    for (std::size_t i = 0; i < widths.size(); ++i) {
        const DailyTable::Column& column = table.columns[i];
        if (!column.isNumber)
            widths[i] = std::min(widths[i], isSentence(column) ? kLeastSentence : kLeastName);
    }
    return widths;
}

/// Gives what is left to the sentences, or to all columns by their widths.
void widen(const DailyTable& table, std::vector<double>& widths, double left)
{
    const auto sentences = std::count_if(table.columns.begin(), table.columns.end(), isSentence);
    const double sum = sumOf(widths);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        if (sentences == 0)
            widths[i] += left * widths[i] / sum;
        else if (isSentence(table.columns[i]))
            widths[i] += left / double(sentences);
    }
}

/// Takes what is missing from the columns that are wider than they must be, by how much they are.
void narrow(std::vector<double>& widths, const std::vector<double>& least, double missing)
{
    const double spare = sumOf(widths) - sumOf(least);
    for (std::size_t i = 0; i < widths.size() && spare > 0; ++i)
        widths[i] -= std::min(1.0, missing / spare) * (widths[i] - least[i]);
    const double sum = sumOf(widths);
    if (missing > spare) // letters are as small as they may be
        std::transform(widths.begin(), widths.end(), widths.begin(),
                       [&](double each) { return each * (1 - (missing - spare) / sum); });
}

} // namespace

TableLook::TableLook(const DailyTable& table, double width) : m_table(table), m_size(kUsualSize)
{
    std::vector<double> least;
    for (;; --m_size) {
        m_widths = wantedWidths(table, m_size);
        least = leastWidths(table, m_widths);
        if (sumOf(least) <= width || m_size <= kLeastSize)
            break;
    }
    const double left = width - sumOf(m_widths);
    if (left > 0)
        widen(table, m_widths, left);
    else
        narrow(m_widths, least, -left);
}

TableLook::Row TableLook::row(const QStringList& texts, RowKind kind) const
{
    Row row;
    row.isShaded = kind != RowKind::Values;
    row.font = sheetFont(m_size, row.isShaded);
    double left = 0;
    int lines = 1;
    for (std::size_t i = 0; i < m_table.columns.size(); ++i) {
        const DailyTable::Column& column = m_table.columns[i];
        const double room = m_widths[i] - 2 * kPadding;
        const QString text = texts.value(static_cast<int>(i));
        const int most = kind == RowKind::Heading ? kHeadingLines : column.lines;
        Row::Cell& cell = row.cells.emplace_back();
        cell.lines = wrapped(text, row.font, room, most,
                             isSentence(column) ? Qt::ElideRight : Qt::ElideMiddle);
        cell.isNumber = column.isNumber;
        cell.place = QRectF(left, 0, m_widths[i], 0);
        lines = std::max(lines, static_cast<int>(cell.lines.size()));
        left += m_widths[i];
    }
    row.height = lines * pagetext::lineHeight(row.font) + 2 * kPadding;
    for (Row::Cell& cell : row.cells)
        cell.place.setHeight(row.height);
    return row;
}

TableLook::Row TableLook::heading() const
{
    QStringList captions;
    captions.reserve(static_cast<int>(m_table.columns.size()));
    for (const DailyTable::Column& column : m_table.columns)
        captions << column.caption;
    return row(captions, RowKind::Heading);
}

void paintRow(QPainter& painter, const TableLook::Row& row, const QPointF& corner)
{
    for (const TableLook::Row::Cell& cell : row.cells) {
        const QRectF place = cell.place.translated(corner);
        painter.setPen(QPen(pagetext::kRule, pagetext::kRuleWidth));
        painter.setBrush(row.isShaded ? QBrush(pagetext::kGround) : QBrush(Qt::NoBrush));
        painter.drawRect(place);
        QRectF line = place.adjusted(kPadding, kPadding, -kPadding, 0);
        for (const QString& text : cell.lines) {
            pagetext::drawLine(painter, line, row.font, text,
                               cell.isNumber ? Qt::AlignRight : Qt::AlignLeft);
            line.translate(0, pagetext::lineHeight(row.font));
        }
    }
}
