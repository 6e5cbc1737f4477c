#include "reports/daily/DailyPages.h"

#include "map/sheet/SheetText.h"
#include "reports/daily/PageText.h"
#include "reports/daily/TableLook.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>
#include <array>

namespace {

using pagetext::drawLine;
using pagetext::elided;
using pagetext::kPadding;
using pagetext::lineHeight;

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
constexpr double kEdge = 10;  // head and foot
constexpr double kBeside = 6; // a chapter is followed by so many lines on its page
constexpr int kNoteLines = 4;
constexpr double kMostCaption = 0.6; // of a value's width

const QColor kFaint(0x50, 0x50, 0x50);

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

void DailyPages::addTable(const DailyTable& table)
{
    const TableLook look(table, kPage.width());
    const auto addRow = [this](TableLook::Row row) {
        const QPointF corner(kPage.left(), m_top);
        m_top += row.height;
        add([corner, row = std::move(row)](QPainter& painter) { paintRow(painter, row, corner); });
    };
    addChapter(table.title);
    addRow(look.heading());
    for (std::size_t i = 0; i < table.rows.size(); ++i) {
        const bool isSum = table.hasSum && i + 1 == table.rows.size();
        TableLook::Row row =
            look.row(table.rows[i], isSum ? TableLook::RowKind::Sum : TableLook::RowKind::Values);
        if (row.height > rest()) {
            beginPage();
            addRow(look.heading());
        }
        addRow(std::move(row));
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
    const QFont font = sheetFont(kEdge);
    const double half = kPage.width() / 2 - kPadding;
    QRectF place(kPage.left(), kPage.top() - kEdgeGap - lineHeight(font), kPage.width(), 0);
    drawLine(painter, place, font, elided(m_left, font, half), Qt::AlignLeft, kFaint);
    drawLine(painter, place, font, elided(m_right, font, half), Qt::AlignRight, kFaint);
    const double line = place.top() + lineHeight(font) + kPadding / 2;
    painter.setPen(QPen(pagetext::kRule, pagetext::kRuleWidth));
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
