#include "plots/PlotLegend.h"

#include "lum_sdk/DpiScale.h"
#include "plots/PlotLook.h"

#include <QPainter>

#include <algorithm>

namespace {

int signWidth()
{
    return dpi_scaled(20);
}

int gap()
{
    return dpi_scaled(12);
}

void drawSign(QPainter& painter, const PlotLegend::Entry& entry, const QRectF& at)
{
    const QPointF middle = at.center();
    switch (entry.sign) {
    case PlotLegend::Sign::Disc:
        painter.setPen(Qt::NoPen);
        painter.setBrush(entry.color);
        painter.drawEllipse(middle, dpi_scaled(4.0), dpi_scaled(4.0));
        break;
    case PlotLegend::Sign::Box: {
        QRectF box(0, 0, dpi_scaled(11.0), dpi_scaled(9.0));
        box.moveCenter(middle);
        painter.fillRect(box, entry.color);
        break;
    }
    default: {
        QPen pen(entry.color, dpi_scaled(2.0), Qt::SolidLine, Qt::FlatCap);
        if (entry.sign == PlotLegend::Sign::DashedLine)
            pen.setDashPattern({2, 1.5});
        painter.setPen(pen);
        painter.drawLine(QPointF(at.left() + 1, middle.y()), QPointF(at.right() - 2, middle.y()));
    }
    }
}

} // namespace

PlotLegend::PlotLegend(QWidget* parent) : QWidget(parent)
{
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum); // rows depend on the width
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void PlotLegend::clear()
{
    m_entries.clear();
    updateGeometry();
    update();
}

void PlotLegend::add(Sign sign, const QColor& color, const QString& text)
{
    m_entries.push_back({sign, color, text});
    updateGeometry();
    update();
}

int PlotLegend::rowHeight() const
{
    return fontMetrics().height() + dpi_scaled(3);
}

std::vector<PlotLegend::Placed> PlotLegend::placed(double width) const
{
    std::vector<Placed> all;
    for (const int entriesARow : {1, 2, 3, 4}) {
        const int column = int(width) / entriesARow - (entriesARow > 1 ? gap() : 0);
        all = placed(width, std::max(1, column - signWidth() - 1));
        if (all.empty() || all.back().entry != nullptr)
            break;
    }
    return all;
}

std::vector<PlotLegend::Placed> PlotLegend::placed(double width, int longest) const
{
    const QFontMetrics metrics = fontMetrics();
    const QString more = tr("and %1 more");
    const int moreWidth = metrics.horizontalAdvance(more.arg(m_entries.size()));
    std::vector<Placed> all;
    all.reserve(m_entries.size());
    double x = 0;
    int row = 0;
    for (const Entry& entry : m_entries) {
        const bool isName = entry.sign == Sign::Disc || entry.sign == Sign::Box;
        const QString text = metrics.elidedText(entry.text, Qt::ElideMiddle,
                                                isName ? longest : int(width) - signWidth() - 1);
        const double needed = signWidth() + metrics.horizontalAdvance(text) + 1;
        const std::size_t left = m_entries.size() - all.size();
        // The last row keeps room for the number of those that have none.
        const double room = row + 1 == kMostRows && left > 1 ? width - moreWidth - gap() : width;
        if (x > 0 && x + needed > room) {
            if (row + 1 == kMostRows) {
                all.push_back({{x, double(row * rowHeight()), moreWidth + 1.0, double(rowHeight())},
                               more.arg(left),
                               nullptr});
                break;
            }
            x = 0;
            ++row;
        }
        all.push_back({{x, double(row * rowHeight()), needed, double(rowHeight())}, text, &entry});
        x += needed + gap();
    }
    return all;
}

int PlotLegend::heightFor(int width) const
{
    const std::vector<Placed> all = placed(width);
    return all.empty() ? 0 : int(all.back().place.bottom());
}

void PlotLegend::paint(QPainter& painter, const QRectF& rectangle, const QColor& text) const
{
    painter.save();
    painter.setFont(unscaledFont(font()));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(rectangle.topLeft());
    for (const Placed& each : placed(rectangle.width())) {
        QRectF place = each.place;
        if (each.entry != nullptr) {
            drawSign(painter, *each.entry,
                     {place.left(), place.top(), signWidth() - 2.0, place.height()});
            place.setLeft(place.left() + signWidth());
        }
        painter.setPen(text);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, each.text);
    }
    painter.restore();
}

QSize PlotLegend::sizeHint() const
{
    const int wide = dpi_scaled(400);
    return {wide, heightFor(wide)};
}

QSize PlotLegend::minimumSizeHint() const
{
    return {0, 0};
}

void PlotLegend::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    paint(painter, rect(), palette().color(QPalette::WindowText));
}
