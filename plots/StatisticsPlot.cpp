#include "plots/StatisticsPlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/ShortenedText.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "plots/PlotFiles.h"
#include "plots/PlotMouse.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QTimer>
#include <QVBoxLayout>
#include <qwt_plot_renderer.h>
#include <qwt_scale_widget.h>

#include <algorithm>

namespace {

constexpr double kReach = 6; // pixels, from the mouse to what it picks
constexpr double kKeyZoom = 1.5;
constexpr double kKeyMove = 0.1; // of what is shown
constexpr int kNoteMs = 100;
constexpr int kNoteFlags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;
constexpr int kLeastPanel = 90; // pixels of height; where there are less, the note is left out
constexpr int kMostTipName = 40;

QString shortened(const QString& name)
{
    return lum::shortened(name, kMostTipName);
}

} // namespace

StatisticsPlot::StatisticsPlot(int panels, QWidget* parent)
    : QWidget(parent), m_legend(new PlotLegend(this)), m_noteLabel(new QLabel(this)),
      m_emptyLabel(new QLabel(this)), m_noteTimer(new QTimer(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    auto* const layout = new QVBoxLayout(this);
    const int margin = dpi_scaled(4);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(dpi_scaled(2));
    layout->addWidget(m_legend);
    for (int i = 0; i < panels; ++i) {
        m_panels.push_back(new PlotPanel(this));
        m_mice.push_back(new PlotMouse(*this, *m_panels.back()));
        connect(m_panels.back(), &PlotPanel::resized, this, &StatisticsPlot::alignPanels);
        connect(m_panels.back(), &PlotPanel::resized, m_noteTimer, qOverload<>(&QTimer::start));
        layout->addWidget(m_panels.back(), 1);
    }
    m_emptyLabel->setAlignment(Qt::AlignCenter);
    m_emptyLabel->setTextFormat(Qt::PlainText);
    layout->addWidget(m_emptyLabel, 1);
    m_noteLabel->setTextFormat(Qt::PlainText);
    m_noteLabel->setFont(smallerFont(font()));
    layout->addWidget(m_noteLabel);
    for (QLabel* const label : {m_emptyLabel, m_noteLabel}) {
        label->setWordWrap(true);
        label->setMinimumWidth(1);
    }
    m_noteTimer->setSingleShot(true);
    m_noteTimer->setInterval(kNoteMs);
    connect(m_noteTimer, &QTimer::timeout, this, &StatisticsPlot::updateNote);
    m_look = PlotLook::onScreen(palette());
    m_empty = tr("There is nothing to show.");
    updateParts();
}

QString StatisticsPlot::title() const
{
    return m_data.subject.isEmpty() ? caption()
                                    : tr("%1: %2").arg(caption(), shortened(m_data.subject));
}

QString StatisticsPlot::joined(const QString& first, const QString& second)
{
    if (first.isEmpty() || second.isEmpty())
        return first + second;
    return tr("%1 %2", "two sentences").arg(first, second);
}

void StatisticsPlot::setData(PlotData data)
{
    const bool isSame = !m_isUsual && !isEmpty() && data.subject == m_data.subject;
    m_data = std::move(data);
    m_selection.assign(m_data.sample == nullptr ? 0 : m_data.sample->results.size(), false);
    refill(PlotLook::onScreen(palette()));
    updateParts();
    if (isSame && !isEmpty()) {
        for (PlotPanel* const panel : m_panels)
            panel->fitToScreen();
        alignPanels();
        replotAll();
    } else {
        showUsual();
    }
}

void StatisticsPlot::refill(const PlotLook& look)
{
    m_look = look;
    m_legend->clear();
    m_note.clear();
    m_method.clear();
    m_empty.clear();
    for (PlotPanel* const panel : m_panels) {
        panel->clear();
        panel->setLook(look);
    }
    if (m_data.sample == nullptr || m_data.places.empty())
        m_empty = m_data.sample == nullptr ? tr("There is nothing to show.")
                                           : tr("There are no results to show.");
    else
        fill();
    if (isEmpty())
        m_legend->clear();
}

void StatisticsPlot::updateParts()
{
    for (PlotPanel* const panel : m_panels)
        panel->setVisible(!isEmpty());
    m_legend->setVisible(!m_legend->entries().empty());
    m_emptyLabel->setVisible(isEmpty());
    m_emptyLabel->setText(m_empty);
    updateNote();
    shareHeight();
}

QString StatisticsPlot::note() const
{
    std::size_t outside = 0;
    for (const PlotPanel* const panel : m_panels) {
        const PlotPanel::View view = panel->view();
        std::size_t ofPanel = 0;
        for (const PlotItem* const item : panel->items())
            ofPanel += item->countOutside(view.x, view.y);
        outside = std::max(outside, ofPanel);
    }
    if (outside == 0)
        return m_note;
    return joined(m_note, tr("Outside of the picture: %1.").arg(lum::groupedNumber(outside)));
}

void StatisticsPlot::updateNote()
{
    m_noteLabel->setText(note());
    m_noteLabel->setToolTip(
        m_method.isEmpty() ? QString() : Qt::convertFromPlainText(m_method, Qt::WhiteSpaceNormal));
}

void StatisticsPlot::setSelected(const std::vector<std::uint32_t>& places)
{
    std::fill(m_selection.begin(), m_selection.end(), false);
    for (const std::uint32_t place : places) {
        if (place < m_selection.size())
            m_selection[place] = true;
    }
    replotAll();
}

// --- what is shown ---

void StatisticsPlot::replotAll()
{
    for (PlotPanel* const panel : m_panels)
        panel->replot();
    m_noteTimer->start();
}

double StatisticsPlot::heightOf(const PlotPanel& panel, double all) const
{
    const PlotPanel& last = *m_panels.back();
    const double axis = last.axisWidget(QwtPlot::xBottom)->sizeHint().height();
    const double canvas = std::max(1.0, (all - axis) / double(m_panels.size()));
    return canvas + (&panel == &last ? axis : 0);
}

void StatisticsPlot::shareHeight()
{
    const double all = height() - m_legend->heightFor(width());
    const double rest = all - m_noteLabel->heightForWidth(width());
    const bool hasRoom = rest >= dpi_scaled(kLeastPanel) * double(m_panels.size());
    m_noteLabel->setVisible(!m_note.isEmpty() && !isEmpty() && hasRoom);
    auto* const boxes = qobject_cast<QBoxLayout*>(layout());
    for (PlotPanel* const panel : m_panels)
        boxes->setStretchFactor(panel, int(heightOf(*panel, hasRoom ? rest : all)));
}

void StatisticsPlot::alignPanels()
{
    if (m_panels.size() < 2)
        return;
    double widest = 0;
    for (const PlotPanel* const panel : m_panels)
        widest = std::max(widest, panel->yTextWidth());
    for (PlotPanel* const panel : m_panels)
        panel->setYTextWidth(widest);
}

void StatisticsPlot::setView(PlotPanel& panel, const PlotPanel::View& view)
{
    m_isUsual = false;
    for (PlotPanel* const each : m_panels)
        each->setView(each == &panel ? view : PlotPanel::View{view.x, each->view().y});
    alignPanels();
    replotAll();
}

void StatisticsPlot::setViews(bool isUsual)
{
    if (isEmpty())
        return;
    for (PlotPanel* const panel : m_panels)
        panel->setView(isUsual ? panel->usualView() : panel->wholeView());
    m_isUsual = isUsual;
    alignPanels();
    replotAll();
    updateNote();
}

void StatisticsPlot::showUsual()
{
    setViews(true);
}

void StatisticsPlot::showAll()
{
    setViews(false);
}

void StatisticsPlot::zoomAll(double factor)
{
    const QPointF middle = QRectF(m_panels.front()->canvas()->contentsRect()).center();
    for (PlotPanel* const panel : m_panels)
        setView(*panel, panel->zoomed(middle, panel == m_panels.front() ? factor : 1));
}

void StatisticsPlot::zoomIn()
{
    zoomAll(1 / kKeyZoom);
}

void StatisticsPlot::zoomOut()
{
    zoomAll(kKeyZoom);
}

void StatisticsPlot::pan(double right, double down)
{
    PlotPanel& first = *m_panels.front();
    const QSizeF size = first.canvas()->contentsRect().size();
    setView(first, first.moved(first.view(), {right * size.width(), down * size.height()}));
}

// --- what is picked ---

std::optional<PlotItem::Hit> StatisticsPlot::hitAt(const PlotPanel& panel, const QPointF& at) const
{
    const PlotMaps maps = panel.maps();
    for (const PlotItem* const item : panel.items()) {
        if (auto hit = item->hit(at, maps, dpi_scaled(kReach)); hit)
            return hit;
    }
    return std::nullopt;
}

void StatisticsPlot::select(const PlotPanel& panel, const QRectF& rectangle)
{
    std::vector<std::uint32_t> places;
    for (const PlotItem* const item : panel.items())
        item->collect(rectangle, panel.maps(), places);
    std::sort(places.begin(), places.end());
    places.erase(std::unique(places.begin(), places.end()), places.end());
    setSelected(places);
    Q_EMIT selected(places);
}

void StatisticsPlot::pick(const PlotPanel& panel, const QPoint& at)
{
    const auto hit = hitAt(panel, at);
    const std::vector<std::uint32_t> places = hit ? hit->places : std::vector<std::uint32_t>();
    setSelected(places);
    Q_EMIT selected(places);
}

void StatisticsPlot::open(const PlotPanel& panel, const QPoint& at)
{
    if (const auto hit = hitAt(panel, at); hit && hit->value)
        Q_EMIT activated(hit->places.front());
    else if (m_isUsual)
        showAll();
    else
        showUsual();
}

QString StatisticsPlot::tipAt(const PlotPanel& panel, const QPoint& at) const
{
    const auto hit = hitAt(panel, at);
    if (!hit || !hit->value)
        return hit ? hit->text : QString();
    const SurveyPoint& point = *m_data.result(hit->places.front()).point;
    return tr("Line %1, point %2")
               .arg(shortened(lum::toQString(point.lineNumber)),
                    shortened(lum::toQString(writtenPointNumber(point.pointNumber)))) +
           QLatin1Char('\n') + panel.valueText(*hit->value);
}

// --- events ---

void StatisticsPlot::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        return pan(kKeyMove, 0);
    case Qt::Key_Right:
        return pan(-kKeyMove, 0);
    case Qt::Key_Up:
        return pan(0, kKeyMove);
    case Qt::Key_Down:
        return pan(0, -kKeyMove);
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoomIn();
    case Qt::Key_Minus:
        return zoomOut();
    case Qt::Key_Home:
        return showAll();
    case Qt::Key_Escape:
        if (std::any_of(m_mice.begin(), m_mice.end(), [](PlotMouse* m) { return m->cancel(); }))
            return;
        break;
    default:
        break;
    }
    QWidget::keyPressEvent(event);
}

void StatisticsPlot::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    const bool isOther =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (!isOther || m_legend == nullptr)
        return;
    refill(PlotLook::onScreen(palette()));
    updateParts();
    for (PlotPanel* const panel : m_panels)
        panel->fitToScreen();
    alignPanels();
    replotAll();
}

void StatisticsPlot::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    updateParts();
}

void StatisticsPlot::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    alignPanels();
}

// --- on paper and in files ---

double StatisticsPlot::paintHead(QPainter& painter, const QSizeF& size) const
{
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(unscaledFont(bold));
    painter.setPen(m_look.text);
    const double titleHeight = QFontMetricsF(bold).height() + dpi_scaled(4);
    painter.drawText(QRectF(0, 0, size.width(), titleHeight), Qt::AlignLeft | Qt::AlignTop,
                     painter.fontMetrics().elidedText(title(), Qt::ElideMiddle, int(size.width())));
    const double legendHeight = m_legend->heightFor(int(size.width()));
    m_legend->paint(painter, {0, titleHeight, size.width(), legendHeight}, m_look.text);
    return titleHeight + legendHeight + dpi_scaled(4);
}

double StatisticsPlot::noteHeight(QPainter& painter, const QSizeF& size) const
{
    if (m_note.isEmpty() || isEmpty())
        return 0;
    painter.setFont(unscaledFont(m_noteLabel->font()));
    const QRectF all({0, 0}, size);
    return painter.boundingRect(all, kNoteFlags, joined(note(), m_method)).height() + dpi_scaled(4);
}

void StatisticsPlot::paintNote(QPainter& painter, const QRectF& rectangle) const
{
    painter.setFont(unscaledFont(m_noteLabel->font()));
    painter.setPen(m_look.text);
    painter.drawText(rectangle.adjusted(0, dpi_scaled(4), 0, 0), kNoteFlags,
                     joined(note(), m_method));
}

void StatisticsPlot::paintLight(QPainter& painter, const QRectF& rectangle)
{
    const double scale = painter.device()->logicalDpiX() / double(logicalDpiX());
    const QSizeF size = rectangle.size() / scale;
    painter.save();
    painter.translate(rectangle.topLeft());
    painter.scale(scale, scale);
    painter.fillRect(QRectF({0, 0}, size), m_look.paper);
    const double head = paintHead(painter, size);
    const double foot = noteHeight(painter, size);
    const double rest = size.height() - head - foot;
    if (isEmpty()) {
        painter.drawText(QRectF(0, head, size.width(), rest), Qt::AlignCenter | Qt::TextWordWrap,
                         m_empty);
        painter.restore();
        return;
    }
    for (PlotPanel* const panel : m_panels)
        panel->fitToPaper({size.width(), heightOf(*panel, rest)});
    alignPanels();
    paintNote(painter, {0, size.height() - foot, size.width(), foot}); // of what is seen now
    painter.restore();
    const QwtPlotRenderer renderer;
    double top = head;
    for (PlotPanel* const panel : m_panels) {
        const double height = heightOf(*panel, rest);
        renderer.render(
            panel, &painter,
            {rectangle.left(), rectangle.top() + top * scale, rectangle.width(), height * scale});
        top += height;
    }
}

void StatisticsPlot::paint(QPainter& painter, const QRectF& rectangle)
{
    refill(PlotLook::onPaper());
    paintLight(painter, rectangle);
    refill(PlotLook::onScreen(palette()));
    for (PlotPanel* const panel : m_panels)
        panel->fitToScreen();
    alignPanels();
    replotAll();
}

void StatisticsPlot::copy()
{
    QApplication::clipboard()->setImage(pictureOf(*this));
}

QStringList StatisticsPlot::fileEndings()
{
    return {QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")};
}

Outcome StatisticsPlot::save(const QString& path)
{
    return savePlot(*this, path);
}
