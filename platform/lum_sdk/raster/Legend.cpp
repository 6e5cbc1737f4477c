#include "lum_sdk/raster/Legend.h"

#include "lum_sdk/GroupedNumber.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace lum {

namespace {

// screen pixels
constexpr QSize kSmallestScreen(200, 120);
constexpr int kMargin = 12;
constexpr int kPadding = 6;
constexpr int kGap = 12;        // before a number
constexpr int kCornerRoom = 60; // kept free below, for what stands in the lower left corner
constexpr double kRadius = 4;

constexpr double kWidest = 0.4;  // of the screen
constexpr int kPaperAlpha = 210; // lets a little of the map show through

/// The texts of a legend, as they are drawn.
class Rows
{
public:
    Rows(const Legend& legend, const QFontMetrics& metrics, const QSize& screen)
        : m_height(std::max(metrics.height(), static_cast<int>(2 * kRadius) + 2))
    {
        for (const Legend::Entry& entry : legend.entries)
            m_numbers = std::max(m_numbers, metrics.horizontalAdvance(groupedNumber(entry.count)));
        const int widest = std::max(1, static_cast<int>(kWidest * screen.width()) - beside());
        m_title = metrics.elidedText(legend.title, Qt::ElideMiddle, widest + beside());
        int width = metrics.horizontalAdvance(m_title) - beside();
        const std::size_t room = roomOn(screen);
        for (const Legend::Entry& entry : legend.entries) {
            m_entries.push_back(entry);
            QString& text = m_entries.back().text;
            text = metrics.elidedText(text, Qt::ElideMiddle, widest);
            width = std::max(width, metrics.horizontalAdvance(text));
            if (m_entries.size() == room && room < legend.entries.size()) {
                m_isCut = true;
                break;
            }
        }
        m_size = QSize(width + beside() + 2 * kPadding,
                       static_cast<int>(m_entries.size() + 1) * m_height + 2 * kPadding);
    }

    [[nodiscard]] const QSize& size() const { return m_size; }
    [[nodiscard]] bool isEmpty() const { return m_entries.empty(); }

    void draw(QPainter& painter, const QPoint& corner) const
    {
        QRect row(corner, QSize(m_size.width() - 2 * kPadding, m_height));
        painter.setPen(Qt::black);
        painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, m_title);
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            row.translate(0, m_height);
            if (m_isCut && i + 1 == m_entries.size())
                painter.drawText(row, Qt::AlignLeft | Qt::AlignVCenter, QString(QChar(0x2026)));
            else
                draw(painter, row, m_entries[i]);
        }
    }

private:
    /// The width of a row without its text.
    [[nodiscard]] int beside() const { return m_height + kGap + m_numbers; }
    /// How many rows may stand below the title.
    [[nodiscard]] std::size_t roomOn(const QSize& screen) const
    {
        const int room = screen.height() - 2 * kMargin - 2 * kPadding - kCornerRoom;
        return static_cast<std::size_t>(std::max(1, room / m_height - 1));
    }
    void draw(QPainter& painter, const QRect& row, const Legend::Entry& entry) const
    {
        painter.setPen(Qt::NoPen);
        painter.setBrush(entry.color);
        painter.drawEllipse(QPointF(row.left() + m_height / 2.0 - 1, row.center().y() + 0.5),
                            kRadius, kRadius);
        painter.setPen(Qt::black);
        painter.drawText(row.adjusted(m_height, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         entry.text);
        painter.drawText(row, Qt::AlignRight | Qt::AlignVCenter, groupedNumber(entry.count));
    }

    int m_height;      ///< of a row
    int m_numbers = 0; ///< the width of the longest number
    QString m_title;
    std::vector<Legend::Entry> m_entries;
    bool m_isCut = false; ///< the last row stands for those that have no room
    QSize m_size;
};

} // namespace

QRect drawLegend(QPainter& painter, const QSize& screen, const Legend& legend)
{
    if (screen.width() < kSmallestScreen.width() || screen.height() < kSmallestScreen.height())
        return {};
    const Rows rows(legend, painter.fontMetrics(), screen);
    if (rows.isEmpty())
        return {};
    const QRect paper(QPoint(kMargin, kMargin), rows.size());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(paper, QColor(255, 255, 255, kPaperAlpha));
    rows.draw(painter, paper.topLeft() + QPoint(kPadding, kPadding));
    painter.restore();
    return paper;
}

} // namespace lum
