#include "plots/StatisticsPlot.h"

#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/ShortenedText.h"
#include "lum_sdk/Text.h"
#include "model/PointNumber.h"
#include "plots/PlotFiles.h"
#include "plots/PlotMouse.h"
#include "plots/PlotPaper.h"

#include <QApplication>
#include <QClipboard>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QTextDocument>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr double kReach = 6; // pixels, from the mouse to what it picks
constexpr double kKeyZoom = 1.5;
constexpr double kKeyMove = 0.1; // of what is shown
constexpr int kNoteMs = 100;
constexpr int kLeastPanel = 90; // pixels of height; where there are less, the note is left out
constexpr int kMostTipName = 40;

QString shortened(const QString& name)
{
    return lum::shortened(name, kMostTipName);
}

} // namespace

StatisticsPlot::StatisticsPlot(int panelCount, QWidget* parent)
    : QWidget(parent), m_legend(new PlotLegend(this)), m_column(new PanelColumn(this)),
      m_noteLabel(new QLabel(this)), m_emptyLabel(new QLabel(this)), m_noteTimer(new QTimer(this))
{
    setFocusPolicy(Qt::StrongFocus);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    auto* const layout = new QVBoxLayout(this);
    const int margin = dpi_scaled(4);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(dpi_scaled(2));
    layout->addWidget(m_legend);
    for (int i = 0; i < panelCount; ++i)
        m_mice.push_back(new PlotMouse(*this, m_column->addPanel()));
    connect(m_column, &PanelColumn::resized, m_noteTimer, qOverload<>(&QTimer::start));
    layout->addWidget(m_column, 1);
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
        for (PlotPanel* const panel : panels())
            panel->fitToScreen();
        m_column->align();
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
    for (PlotPanel* const panel : panels()) {
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
    m_column->setVisible(!isEmpty());
    m_legend->setVisible(!m_legend->entries().empty());
    m_emptyLabel->setVisible(isEmpty());
    m_emptyLabel->setText(m_empty);
    updateNote();
    showNote();
}

QString StatisticsPlot::note() const
{
    std::size_t outside = 0;
    for (const PlotPanel* const panel : panels()) {
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

QString StatisticsPlot::noteOnPaper() const
{
    return m_note.isEmpty() ? QString() : joined(note(), m_method);
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
    for (PlotPanel* const panel : panels())
        panel->replot();
    m_noteTimer->start();
}

/// The sentences leave room to the data.
void StatisticsPlot::showNote()
{
    const double rest =
        height() - m_legend->heightFor(width()) - m_noteLabel->heightForWidth(width());
    const bool hasRoom = rest >= dpi_scaled(kLeastPanel) * double(panels().size());
    m_noteLabel->setVisible(!m_note.isEmpty() && !isEmpty() && hasRoom);
}

void StatisticsPlot::setView(PlotPanel& panel, const PlotPanel::View& view)
{
    m_isUsual = false;
    for (PlotPanel* const each : panels())
        each->setView(each == &panel ? view : PlotPanel::View{view.x, each->view().y});
    m_column->align();
    replotAll();
}

void StatisticsPlot::setViews(bool isUsual)
{
    if (isEmpty())
        return;
    for (PlotPanel* const panel : panels())
        panel->setView(isUsual ? panel->usualView() : panel->wholeView());
    m_isUsual = isUsual;
    m_column->align();
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
    const QPointF middle = QRectF(panels().front()->canvas()->contentsRect()).center();
    for (PlotPanel* const panel : panels())
        setView(*panel, panel->zoomed(middle, panel == panels().front() ? factor : 1));
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
    PlotPanel& first = *panels().front();
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
    for (PlotPanel* const panel : panels())
        panel->fitToScreen();
    m_column->align();
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
    m_column->align();
}

// --- on paper and in files ---

void StatisticsPlot::paint(QPainter& painter, const QRectF& rectangle)
{
    refill(PlotLook::onPaper());
    paintOnPaper(*this, painter, rectangle);
    refill(PlotLook::onScreen(palette()));
    for (PlotPanel* const panel : panels())
        panel->fitToScreen();
    m_column->align();
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
