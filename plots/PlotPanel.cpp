#include "plots/PlotPanel.h"

#include "lum_sdk/DpiScale.h"

#include <QPen>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_layout.h>
#include <qwt_plot_marker.h>
#include <qwt_scale_engine.h>
#include <qwt_scale_widget.h>

#include <algorithm>
#include <cmath>

namespace {

constexpr double kDataZ = 20;
constexpr double kLargestZoom = 1e-6; // of all, seen at once
constexpr double kSmallestZoom = 20;
constexpr int kOneLine = 10000; // pixels, for a title
const QString kLongestDate = QStringLiteral("0000-00-00");

} // namespace

PlotPanel::PlotPanel(QWidget* parent) : QwtPlot(parent), m_grid(new QwtPlotGrid)
{
    auto* const canvas = qobject_cast<QwtPlotCanvas*>(this->canvas());
    canvas->setFrameShape(QFrame::NoFrame);
    canvas->setFocusIndicator(QwtPlotCanvas::NoFocusIndicator);
    canvas->setCursor(Qt::ArrowCursor);
    plotLayout()->setAlignCanvasToScales(true);
    plotLayout()->setSpacing(dpi_scaled(2));
    m_grid->attach(this);
    const QFontMetrics metrics(smallerFont(font()));
    // The same beside every x axis, so that the canvases of several panels end at the same place.
    const int room = metrics.horizontalAdvance(kLongestDate) / 2 + dpi_scaled(4);
    axisWidget(xBottom)->setMinBorderDist(room, room);
    for (const int axis : {xBottom, yLeft}) {
        axisWidget(axis)->setMargin(0);
        setAxisFont(axis, smallerFont(font()));
        setAxisMaxMinor(axis, 0);
    }
    setScale(*this, yLeft, PlotScale::Number);
}

void PlotPanel::clear()
{
    m_items.clear();
    m_grid->detach();
    detachItems();
    m_grid->attach(this);
}

void PlotPanel::setLook(const PlotLook& look)
{
    m_look = look;
    QPalette colors = look.palette;
    colors.setColor(QPalette::WindowText, look.text);
    colors.setColor(QPalette::Text, look.text);
    setPalette(colors);
    for (const int axis : {xBottom, yLeft})
        axisWidget(axis)->setPalette(colors);
    setCanvasBackground(look.paper);
    QColor grid = look.faint;
    grid.setAlpha(170);
    m_grid->setPen(grid, 0, Qt::DotLine);
}

void PlotPanel::setAxes(PlotScale x, const QString& xTitle, const QString& yTitle)
{
    m_xScale = x;
    setScale(*this, xBottom, x);
    setTexts(xTitle, yTitle);
}

void PlotPanel::setAxes(QwtScaleEngine* xEngine, QwtScaleDraw* xDraw, const QString& xTitle,
                        const QString& yTitle)
{
    m_xScale = PlotScale::Station;
    setAxisScaleEngine(xBottom, xEngine);
    setAxisScaleDraw(xBottom, xDraw);
    setTexts(xTitle, yTitle);
}

void PlotPanel::setCounting()
{
    m_isCounting = true;
    setScale(*this, yLeft, PlotScale::Count);
}

void PlotPanel::setTexts(const QString& xTitle, const QString& yTitle)
{
    m_xTitle = xTitle;
    m_yTitle = yTitle;
    showTitle(xBottom, xTitle);
    showTitle(yLeft, yTitle);
}

void PlotPanel::showTitle(int axis, const QString& title)
{
    QwtText text(title, QwtText::PlainText);
    text.setFont(smallerFont(font()));
    setAxisTitle(axis, text);
}

void PlotPanel::setXAxisShown(bool isShown)
{
    QwtScaleDraw* const draw = axisScaleDraw(xBottom);
    draw->enableComponent(QwtAbstractScaleDraw::Labels, isShown);
    draw->enableComponent(QwtAbstractScaleDraw::Ticks, isShown);
    draw->enableComponent(QwtAbstractScaleDraw::Backbone, isShown);
    showTitle(xBottom, isShown ? m_xTitle : QString());
}

void PlotPanel::setRanges(const PlotRanges& x, const PlotRanges& y)
{
    m_x = x;
    m_y = y;
}

void PlotPanel::add(std::unique_ptr<PlotItem> item)
{
    m_items.push_back(item.get());
    item->setZ(kDataZ); // without the hint: discs are smooth by themselves, bars shall be sharp
    item.release()->attach(this);
}

void PlotPanel::addPlain(std::unique_ptr<QwtPlotItem> item, double z)
{
    item->setZ(z);
    item->setRenderHint(QwtPlotItem::RenderAntialiased);
    item.release()->attach(this); // the base class deletes what is attached
}

void PlotPanel::addHorizontal(double y, const QPen& pen)
{
    auto marker = std::make_unique<QwtPlotMarker>();
    marker->setLineStyle(QwtPlotMarker::HLine);
    marker->setYValue(y);
    marker->setLinePen(pen);
    addPlain(std::move(marker), kDataZ + 1);
}

void PlotPanel::addVertical(double x, const QPen& pen)
{
    auto marker = std::make_unique<QwtPlotMarker>();
    marker->setLineStyle(QwtPlotMarker::VLine);
    marker->setXValue(x);
    marker->setLinePen(pen);
    addPlain(std::move(marker), kDataZ + 1);
}

PlotPanel::View PlotPanel::view() const
{
    return {axisInterval(xBottom), axisInterval(yLeft)};
}

QwtInterval PlotPanel::allowed(const QwtInterval& wanted, const PlotRanges& ranges) const
{
    const double whole = std::max(ranges.all.width(), ranges.usual.width());
    const double width = std::clamp(wanted.width(), whole * kLargestZoom, whole * kSmallestZoom);
    const double farthest = whole * kSmallestZoom;
    const double middle =
        std::clamp((wanted.minValue() + wanted.maxValue()) / 2, ranges.all.minValue() - farthest,
                   ranges.all.maxValue() + farthest);
    return {middle - width / 2, middle + width / 2};
}

void PlotPanel::setView(View view)
{
    view = {allowed(view.x, m_x), allowed(view.y, m_y)};
    if (m_isCounting)
        view.y = {0, view.y.width()};
    m_asked = view;
    const View shown = fitted(view);
    setAxisScale(xBottom, shown.x.minValue(), shown.x.maxValue());
    setAxisScale(yLeft, shown.y.minValue(), shown.y.maxValue());
    updateAxes();
}

PlotPanel::View PlotPanel::fitted(const View& view) const
{
    if (!m_hasEqualAxes || m_canvas.width() < 1 || m_canvas.height() < 1)
        return view;
    const double perPixel =
        std::max(view.x.width() / m_canvas.width(), view.y.width() / m_canvas.height());
    const auto around = [perPixel](const QwtInterval& range, double pixels) {
        const double middle = (range.minValue() + range.maxValue()) / 2;
        const double half = perPixel * pixels / 2;
        return QwtInterval(middle - half, middle + half);
    };
    return {around(view.x, m_canvas.width()), around(view.y, m_canvas.height())};
}

PlotPanel::View PlotPanel::zoomed(const QPointF& about, double factor) const
{
    const PlotMaps now = maps();
    const auto around = [factor](const QwtInterval& range, double fixed) {
        return QwtInterval(fixed + (range.minValue() - fixed) * factor,
                           fixed + (range.maxValue() - fixed) * factor);
    };
    View wanted = view();
    wanted.x = around(wanted.x, now.x.invTransform(about.x()));
    if (!m_isCounting)
        wanted.y = around(wanted.y, now.y.invTransform(about.y()));
    return wanted;
}

PlotPanel::View PlotPanel::moved(const View& from, const QPointF& byPixels) const
{
    const QSizeF size = canvas()->contentsRect().size();
    const double x = from.x.width() * byPixels.x() / std::max(1.0, size.width());
    const double y = from.y.width() * byPixels.y() / std::max(1.0, size.height());
    return {{from.x.minValue() - x, from.x.maxValue() - x},
            {from.y.minValue() + y, from.y.maxValue() + y}};
}

PlotPanel::View PlotPanel::inside(const QRectF& rectangle) const
{
    const PlotMaps now = maps();
    const double bottom = m_isCounting ? 0 : now.y.invTransform(rectangle.bottom());
    return {{now.x.invTransform(rectangle.left()), now.x.invTransform(rectangle.right())},
            {bottom, now.y.invTransform(rectangle.top())}};
}

PlotMaps PlotPanel::maps() const
{
    return {canvasMap(xBottom), canvasMap(yLeft)};
}

QString PlotPanel::valueText(const QPointF& value) const
{
    const auto line = [this](int axis, const QString& title, PlotScale scale, double at) {
        return title + QLatin1String(": ") + scaleText(scale, at, tickStepOf(axisScaleDiv(axis)));
    };
    QString y = line(yLeft, m_yTitle, PlotScale::Number, value.y());
    if (m_xScale == PlotScale::Station)
        return y;
    return line(xBottom, m_xTitle, m_xScale, value.x()) + QLatin1Char('\n') + y;
}

void PlotPanel::setTickCounts(const QSizeF& size)
{
    const QFontMetrics metrics(axisFont(xBottom));
    const bool hasDates = m_xScale == PlotScale::Moment || m_xScale == PlotScale::Day;
    const int widest =
        metrics.horizontalAdvance(hasDates ? kLongestDate : QStringLiteral("-00000.0"));
    setAxisMaxMajor(xBottom, std::clamp(int(size.width() / (1.6 * widest)), 2, 12));
    const bool hasXTexts = axisScaleDraw(xBottom)->hasComponent(QwtAbstractScaleDraw::Labels);
    const double height =
        size.height() - (hasXTexts ? axisWidget(xBottom)->sizeHint().height() : 0);
    const auto hasRoom = [&](const QString& text) {
        return metrics.horizontalAdvance(text) + dpi_scaled(4) <= height;
    };
    const QString withoutUnit = m_yTitle.section(QLatin1String(" ("), 0, 0);
    showTitle(yLeft, hasRoom(m_yTitle) ? m_yTitle : hasRoom(withoutUnit) ? withoutUnit : QString());
    const double texts = height / metrics.height(); // that would stand below each other
    setAxisMaxMajor(yLeft,
                    std::clamp(int(std::max(std::min(4.0, texts / 1.1), texts / 2.2)), 2, 10));
}

void PlotPanel::fitToPaper(const QSizeF& size)
{
    m_paper = size;
    setTickCounts(size);
    // The room for the axes depends on their texts, which depend on the ranges.
    for (int i = 0; i < 3; ++i) {
        layOutOnPaper();
        if (m_asked.x.width() > 0)
            setView(m_asked);
    }
    layOutOnPaper();
}

/// The axes are as long as on the paper, whatever they are on the screen: what their texts need at
/// both ends depends on it.
void PlotPanel::layOutOnPaper()
{
    plotLayout()->activate(this, {{0, 0}, m_paper}, QwtPlotLayout::IgnoreScrollbars);
    m_canvas = plotLayout()->canvasRect().size();
    axisScaleDraw(xBottom)->setLength(m_canvas.width());
    axisScaleDraw(yLeft)->setLength(m_canvas.height());
}

void PlotPanel::fitToScreen()
{
    m_paper = {};
    plotLayout()->invalidate();
    setTickCounts(size());
    updateLayout();
    for (const int axis : {xBottom, yLeft})
        axisWidget(axis)->setLabelRotation(axisScaleDraw(axis)->labelRotation()); // lays it out
    m_canvas = canvas()->contentsRect().size();
    if (m_asked.x.width() > 0)
        setView(m_asked);
}

double PlotPanel::yTitleWidth() const
{
    const QwtScaleWidget& axis = *axisWidget(yLeft);
    return axis.title().isEmpty() ? 0 : axis.titleHeightForWidth(kOneLine) + axis.spacing();
}

double PlotPanel::yTextWidth() const
{
    const QwtScaleDraw* const draw = axisScaleDraw(yLeft);
    const QFont texts = axisFont(yLeft);
    return draw->spacing() + draw->maxTickLength() + draw->maxLabelWidth(texts) + yTitleWidth();
}

void PlotPanel::setYTextWidth(double width)
{
    QwtScaleDraw* const draw = axisScaleDraw(yLeft);
    draw->setMinimumExtent(std::ceil(width - yTitleWidth()) + 1);
    axisWidget(yLeft)->setLabelRotation(draw->labelRotation()); // finds the place of the title
    m_paper.isEmpty() ? updateLayout() : layOutOnPaper();
}

void PlotPanel::resizeEvent(QResizeEvent* event)
{
    QwtPlot::resizeEvent(event);
    fitToScreen();
    replot();
}
