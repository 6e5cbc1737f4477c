#include "plots/PlotPaper.h"

#include "lum_sdk/DpiScale.h"
#include "plots/StatisticsPlot.h"

#include <QPainter>
#include <qwt_plot_renderer.h>

namespace {

constexpr int kNoteFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

int gap()
{
    return dpi_scaled(4);
}

/// \param size of the paper, logical pixels \returns the height
double paintHead(const StatisticsPlot& plot, QPainter& painter, const QSizeF& size)
{
    QFont bold = plot.font();
    bold.setBold(true);
    painter.setFont(unscaledFont(bold));
    painter.setPen(plot.look().text);
    const double titleHeight = QFontMetricsF(bold).height() + gap();
    painter.drawText(
        QRectF(0, 0, size.width(), titleHeight), Qt::AlignLeft | Qt::AlignTop,
        painter.fontMetrics().elidedText(plot.title(), Qt::ElideMiddle, int(size.width())));
    const double legendHeight = plot.legend().heightFor(int(size.width()));
    plot.legend().paint(painter, {0, titleHeight, size.width(), legendHeight}, plot.look().text);
    return titleHeight + legendHeight + gap();
}

double noteHeight(const StatisticsPlot& plot, QPainter& painter, const QSizeF& size)
{
    if (plot.isEmpty())
        return 0;
    painter.setFont(unscaledFont(smallerFont(plot.font())));
    const double height =
        painter.boundingRect(QRectF({0, 0}, size), kNoteFlags, plot.noteOnPaper()).height();
    return height > 0 ? height + gap() : 0;
}

void paintNote(const StatisticsPlot& plot, QPainter& painter, const QRectF& rectangle)
{
    painter.setFont(unscaledFont(smallerFont(plot.font())));
    painter.setPen(plot.look().text);
    painter.drawText(rectangle.adjusted(0, gap(), 0, 0), kNoteFlags, plot.noteOnPaper());
}

} // namespace

void paintOnPaper(const StatisticsPlot& plot, QPainter& painter, const QRectF& rectangle)
{
    const double scale = painter.device()->logicalDpiX() / double(plot.logicalDpiX());
    const QSizeF size = rectangle.size() / scale;
    painter.save();
    painter.translate(rectangle.topLeft());
    painter.scale(scale, scale);
    painter.fillRect(QRectF({0, 0}, size), plot.look().paper);
    const double head = paintHead(plot, painter, size);
    const double foot = noteHeight(plot, painter, size);
    const double rest = size.height() - head - foot;
    if (plot.isEmpty()) {
        painter.drawText(QRectF(0, head, size.width(), rest), Qt::AlignCenter | Qt::TextWordWrap,
                         plot.emptyText());
        painter.restore();
        return;
    }
    for (PlotPanel* const panel : plot.panels())
        panel->fitToPaper({size.width(), plot.column().heightOf(*panel, rest)});
    plot.column().alignTexts();
    paintNote(plot, painter, {0, size.height() - foot, size.width(), foot}); // of what is seen now
    painter.restore();
    const QwtPlotRenderer renderer;
    double top = head;
    for (PlotPanel* const panel : plot.panels()) {
        const double height = plot.column().heightOf(*panel, rest);
        renderer.render(
            panel, &painter,
            {rectangle.left(), rectangle.top() + top * scale, rectangle.width(), height * scale});
        top += height;
    }
}
