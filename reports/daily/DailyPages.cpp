#include "reports/daily/DailyPages.h"

#include "map/sheet/SheetText.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <array>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(DailyReport)
};

// pixels of 1/96 inch
constexpr double kMm = 96 / 25.4;
constexpr QRectF kPage(15 * kMm, 20 * kMm, 180 * kMm, 260 * kMm); // without head and foot
constexpr double kEdgeGap = 4 * kMm;                              // from head and foot to the page
constexpr double kTitle = 20;
constexpr double kChapter = 13;
constexpr double kText = 11;
constexpr double kCell = 9.5;
constexpr double kPadding = 3;
constexpr double kBeside = 6; // a chapter is followed by so many lines on its page
constexpr int kHeadingLines = 3;
constexpr int kNoteLines = 4;
constexpr double kMostCaption = 0.6; // of a value's width
constexpr double kMostName = 150;
constexpr int kMostMeasured = 100; // letters of a cell

const QColor kLine(0xb0, 0xb0, 0xb0);
const QColor kGround(0xea, 0xee, 0xf2);
const QColor kFaint(0x50, 0x50, 0x50);

double lineHeight(const QFont& font)
{
    return QFontMetricsF(font).lineSpacing();
}

QString elided(const QString& text, const QFont& font, double width)
{
    return QFontMetricsF(font).elidedText(text.simplified(), Qt::ElideMiddle, width);
}

/// Draws one line of text, its upper edge at the top of a place.
void drawLine(QPainter& painter, const QRectF& place, const QFont& font, const QString& text,
              Qt::Alignment alignment = Qt::AlignLeft, const QColor& color = Qt::black)
{
    const QFontMetricsF metrics(font);
    double left = place.left();
    if (alignment != Qt::AlignLeft)
        left += (place.width() - metrics.horizontalAdvance(text)) *
                (alignment == Qt::AlignRight ? 1 : 0.5);
    painter.setFont(font);
    painter.setPen(color);
    painter.drawText(QPointF(left, place.top() + metrics.ascent()), text);
}

/// A cell of a row.
struct Cell
{
    QRectF place;
    QStringList lines;
    bool isNumber = false;
};

/// The width of the longest word.
double longestWord(const QString& text, const QFontMetricsF& metrics)
{
    double longest = 0;
    for (const QString& word : text.split(u' ', Qt::SkipEmptyParts))
        longest = std::max(longest, metrics.horizontalAdvance(word));
    return longest;
}

/// The widths of columns, as wide as their cells where there is room. What is left goes to the
/// columns whose cells may have several lines, or to all; what is missing is taken from the widest.
std::vector<double> widthsOf(const DailyTable& table)
{
    const QFontMetricsF metrics(sheetFont(kCell, true));
    std::vector<double> widths;
    widths.reserve(table.columns.size());
    double sum = 0;
    double flexible = 0;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const DailyTable::Column& column = table.columns[i];
        double widest = std::min(longestWord(column.caption, metrics), kMostName);
        for (const QStringList& row : table.rows) {
            const QString text = row.value(static_cast<int>(i)).left(kMostMeasured);
            widest = std::max(widest, std::min(metrics.horizontalAdvance(text), kMostName));
        }
        widths.push_back(widest + 2 * kPadding + 1);
        sum += widths.back();
        flexible += column.lines > 1 ? 1 : 0;
    }
    for (std::size_t i = 0; i < widths.size() && sum < kPage.width(); ++i) {
        const double share = flexible == 0                ? widths[i] / sum
                             : table.columns[i].lines > 1 ? 1 / flexible
                                                          : 0;
        widths[i] += (kPage.width() - sum) * share;
    }
    for (double over = sum - kPage.width(); over > 0.1;) {
        double& widest = *std::max_element(widths.begin(), widths.end());
        const double part = std::min(over, 1.0);
        widest -= part;
        over -= part;
    }
    return widths;
}

/// Places cells beside each other; those of a heading may have more lines.
/// \param[out] height of the row
std::vector<Cell> placeCells(const DailyTable& table, const std::vector<double>& widths,
                             const QStringList& texts, const QFont& font, double top,
                             bool isHeading, double& height)
{
    std::vector<Cell> cells;
    double left = kPage.left();
    int lines = 1;
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const DailyTable::Column& column = table.columns[i];
        const double width = widths[i];
        const double room = width - 2 * kPadding;
        const QString text = texts.value(static_cast<int>(i));
        const int most = isHeading ? kHeadingLines : column.lines;
        Cell& cell = cells.emplace_back();
        cell.lines =
            most == 1 ? QStringList(elided(text, font, room)) : wrapped(text, font, room, most);
        cell.isNumber = column.isNumber;
        cell.place = QRectF(left, top, width, 0);
        lines = std::max(lines, static_cast<int>(cell.lines.size()));
        left += width;
    }
    height = lines * lineHeight(font) + 2 * kPadding;
    for (Cell& cell : cells)
        cell.place.setHeight(height);
    return cells;
}

void paintCell(QPainter& painter, const Cell& cell, const QFont& font, bool isShaded)
{
    if (isShaded)
        painter.fillRect(cell.place, kGround);
    painter.setPen(QPen(kLine, 0.7));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(cell.place);
    QRectF line = cell.place.adjusted(kPadding, kPadding, -kPadding, 0);
    for (const QString& text : cell.lines) {
        drawLine(painter, line, font, text, cell.isNumber ? Qt::AlignRight : Qt::AlignLeft);
        line.translate(0, lineHeight(font));
    }
}

} // namespace

DailyPages::DailyPages(QString left, QString right)
    : m_left(std::move(left)), m_right(std::move(right))
{
    beginPage();
}

void DailyPages::beginPage()
{
    m_pages.emplace_back();
    m_top = kPage.top();
}

double DailyPages::rest() const
{
    return kPage.bottom() - m_top;
}

void DailyPages::need(double height)
{
    if (height > rest() && m_top > kPage.top())
        beginPage();
}

void DailyPages::addText(const QString& text, double size, bool isBold, int lines)
{
    const QFont font = sheetFont(size, isBold);
    for (const QString& line : wrapped(text, font, kPage.width(), lines)) {
        need(lineHeight(font));
        const QRectF place(kPage.left(), m_top, kPage.width(), 0);
        add([=](QPainter& painter) { drawLine(painter, place, font, line); });
        m_top += lineHeight(font);
    }
}

void DailyPages::addTitle(const QString& text)
{
    addText(text, kTitle, true, 2);
    m_top += kPadding;
}

void DailyPages::addChapter(const QString& text)
{
    const QFont font = sheetFont(kChapter, true);
    need((2 + kBeside) * lineHeight(font));
    if (m_top > kPage.top())
        m_top += lineHeight(font) * 0.6;
    addText(text, kChapter, true, 2);
    m_top += kPadding;
}

void DailyPages::addNote(const QString& text)
{
    m_top += kPadding;
    addText(text, kText, false, kNoteLines);
}

void DailyPages::addValues(const DailyValues& values)
{
    const QFont font = sheetFont(kText);
    const double width = kPage.width() / 2;
    double caption = 0;
    for (const auto& [name, value] : values)
        caption = std::max(caption, QFontMetricsF(font).horizontalAdvance(name));
    caption = std::min(caption + 3 * kPadding, width * kMostCaption);
    const double room = width - caption - kPadding;
    for (std::size_t i = 0; i < values.size(); i += 2) {
        std::array<QStringList, 2> lines;
        for (std::size_t side = 0; side < 2 && i + side < values.size(); ++side)
            lines[side] = wrapped(values[i + side].second, font, room, 2);
        const double height =
            std::max({lines[0].size(), lines[1].size(), 1}) * lineHeight(font) + kPadding;
        need(height);
        for (std::size_t side = 0; side < 2 && i + side < values.size(); ++side) {
            const QRectF left(kPage.left() + double(side) * width, m_top, width, 0);
            const QString name = elided(values[i + side].first, font, caption - kPadding);
            add([=, texts = lines[side]](QPainter& painter) {
                drawLine(painter, left, font, name, Qt::AlignLeft, kFaint);
                QRectF place = left.translated(caption, 0);
                for (const QString& text : texts) {
                    drawLine(painter, place, font, text);
                    place.translate(0, lineHeight(font));
                }
            });
        }
        m_top += height;
    }
}

void DailyPages::addRow(const DailyTable& table, const std::vector<double>& widths,
                        const QStringList& cells, bool isHeading, bool isSum)
{
    const QFont font = sheetFont(kCell, isHeading || isSum);
    double height = 0;
    std::vector<Cell> placed = placeCells(table, widths, cells, font, m_top, isHeading, height);
    add([=, placed = std::move(placed)](QPainter& painter) {
        for (const Cell& cell : placed)
            paintCell(painter, cell, font, isHeading || isSum);
    });
    m_top += height;
}

void DailyPages::addTable(const DailyTable& table)
{
    QStringList captions;
    captions.reserve(static_cast<int>(table.columns.size()));
    for (const DailyTable::Column& column : table.columns)
        captions << column.caption;
    const std::vector<double> widths = widthsOf(table);
    addChapter(table.title);
    addRow(table, widths, captions, true, false);
    for (std::size_t row = 0; row < table.rows.size(); ++row) {
        const bool isSum = table.hasSum && row + 1 == table.rows.size();
        double height = 0;
        placeCells(table, widths, table.rows[row], sheetFont(kCell, isSum), 0, false, height);
        if (height > rest()) {
            beginPage();
            addRow(table, widths, captions, true, false);
        }
        addRow(table, widths, table.rows[row], false, isSum);
    }
    if (!table.note.isEmpty())
        addNote(table.note);
}

void DailyPages::addPicture(double height, std::function<void(QPainter&, const QRectF&)> paint)
{
    need(height);
    const QRectF place(kPage.left(), m_top, kPage.width(), std::min(height, rest()));
    add([place, paint = std::move(paint)](QPainter& painter) {
        const QRectF dots = painter.transform().mapRect(place);
        painter.save();
        painter.resetTransform();
        paint(painter, dots);
        painter.restore();
    });
    m_top += place.height() + kPadding;
}

void DailyPages::paintEdges(QPainter& painter, std::size_t page) const
{
    const QFont font = sheetFont(kCell);
    const double half = kPage.width() / 2 - kPadding;
    QRectF place(kPage.left(), kPage.top() - kEdgeGap - lineHeight(font), kPage.width(), 0);
    drawLine(painter, place, font, elided(m_left, font, half), Qt::AlignLeft, kFaint);
    drawLine(painter, place, font, elided(m_right, font, half), Qt::AlignRight, kFaint);
    const double line = place.top() + lineHeight(font) + kPadding / 2;
    painter.setPen(QPen(kLine, 0.7));
    painter.drawLine(QPointF(kPage.left(), line), QPointF(kPage.right(), line));
    place.moveTop(kPage.bottom() + kEdgeGap);
    drawLine(
        painter, place, font,
        Texts::tr("Page %1 of %2").arg(QString::number(page + 1), QString::number(m_pages.size())),
        Qt::AlignHCenter, kFaint);
}

bool DailyPages::paint(QPdfWriter& writer, const std::function<bool()>& next) const
{
    QPainter painter(&writer);
    painter.setRenderHint(QPainter::Antialiasing);
    const double scale = writer.resolution() / 96.0;
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        if (page > 0)
            writer.newPage();
        painter.resetTransform();
        painter.scale(scale, scale);
        paintEdges(painter, page);
        for (const Item& item : m_pages[page])
            item(painter);
        if (!next())
            return false;
    }
    return true;
}
