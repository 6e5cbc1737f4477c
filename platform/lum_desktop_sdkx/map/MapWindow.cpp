#include "lum_desktop_sdkx/map/MapWindow.h"

#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/LayerPicture.h"
#include "lum_desktop_sdkx/map/ReactorEvents.h"
#include "lum_sdk/coords/ICoordTransform.h"
#include "lum_sdk/coords/ProjectCoordTransform.h"
#include "lum_sdk/coords/ShownUnit.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/Payload.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/files/SystemKeys.h"
#include "lum_sdk/raster/Attribution.h"
#include "lum_sdk/raster/Legend.h"
#include "lum_sdk/raster/NorthArrow.h"
#include "lum_sdk/raster/ScaleBar.h"
#include "lum_sdk/Text.h"

#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QRegion>
#include <QRegularExpression>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <cmath>

namespace {

constexpr double kZoomStep = 1.5;
constexpr double kMargin = 0.05; // share of the screen
constexpr int kMoveDelayMs = 30; // all moves within this time lead to one paint

/// Whether two areas have a point in common. Edges count, and an area may have no width or height.
bool doTouch(const QRectF& a, const QRectF& b)
{
    return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() &&
           b.top() <= a.bottom();
}

/// Whether a picture of the view `made` covers at least half of each side of the view `live`.
bool isWorthFinishing(const Transform& made, const Transform& live)
{
    if (made.size() != live.size() || !qFuzzyCompare(made.GetScale(), live.GetScale()))
        return false;
    const QPointF shift = (made.center() - live.center()) / live.GetScale();
    return std::abs(shift.x()) <= live.size().width() / 2.0 &&
           std::abs(shift.y()) <= live.size().height() / 2.0;
}

} // namespace

MapWindow::MapWindow(const char* config, IDesktopHost* host)
    : m_host(*host), m_reactors(*this),
      m_subscription(*this,
                     lum::eventNames({events::kUpdateSystemStatus, events::kInitBoundaryRect}),
                     host->eventManager())
{
    csa_to_dictionary(m_parameters, config != nullptr ? config : "");
    m_transform.setSize(size());
    QPalette paper = palette(); // the colours of the map are made for white, also in a dark theme
    paper.setColor(QPalette::Base, Qt::white);
    paper.setColor(QPalette::Text, Qt::black);
    setPalette(paper);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setContextMenuPolicy(Qt::PreventContextMenu); // the frame's menu must not open here
    m_paintTimer.setSingleShot(true);
    connect(&m_paintTimer, &QTimer::timeout, this, &MapWindow::startPaint);
    connect(&m_painter, &MapPainter::painted, this, &MapWindow::showPicture);
    installDefaultReactors();
}

MapWindow::~MapWindow() = default;

IHost& MapWindow::host()
{
    return m_host;
}

// --- view ---

void MapWindow::pan(int fromX, int fromY, int toX, int toY)
{
    m_transform.panBy(QPointF(toX, toY) - QPointF(fromX, fromY));
    m_fitUntilSeen.reset();
    onViewMoved();
}

void MapWindow::centerOn(double x, double y)
{
    m_transform.setView({x, y}, m_transform.GetScale());
    m_fitUntilSeen.reset();
    onViewMoved();
}

QRegion MapWindow::uncovered() const
{
    QRegion free(rect());
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* each : windows) {
        const QWidget* const parent = each->parentWidget();
        if (parent == nullptr || parent->window() != window() || !each->isVisible())
            continue;
        const Qt::WindowType type = each->windowType();
        const bool isAbove = type == Qt::Dialog || type == Qt::Tool ||
                             (type == Qt::Window && each->isActiveWindow()); // or maybe behind
        if (isAbove && !each->isMinimized())
            free -= each->frameGeometry().translated(-mapToGlobal(QPoint(0, 0)));
    }
    return free;
}

void MapWindow::zoomIn()
{
    zoomAbout(width() / 2.0, height() / 2.0, kZoomStep);
}

void MapWindow::zoomOut()
{
    zoomAbout(width() / 2.0, height() / 2.0, 1 / kZoomStep);
}

void MapWindow::zoomAbout(double screenX, double screenY, double factor)
{
    m_transform.zoomAbout({screenX, screenY}, factor);
    m_fitUntilSeen.reset();
    onViewMoved();
}

void MapWindow::zoomAll()
{
    const QRectF all = m_extent.isNull() ? m_layers.visibleExtent() : m_extent;
    if (all.isNull())
        m_transform.setView({0, 0}, 1);
    else
        fitTo(all, kMargin);
    onViewMoved();
    redraw(); // the caller may have changed what the layers show
}

void MapWindow::zoomRect(double left, double top, double right, double bottom)
{
    const QRectF area(QPointF(left, top), QPointF(right, bottom));
    if (!lum::isFinite(area)) {
        basalt::logWarning("The map cannot zoom to a rectangle that is not finite");
        return;
    }
    if (area.isNull()) {
        const QPointF place = m_transform.SurveyToScreen(area.topLeft());
        zoomAbout(place.x(), place.y(), kZoomStep);
        return;
    }
    fitTo(area.normalized(), 0);
    onViewMoved();
}

void MapWindow::setExtent(double left, double top, double right, double bottom)
{
    const QRectF area = QRectF(QPointF(left, top), QPointF(right, bottom)).normalized();
    if (!lum::isFinite(area)) {
        basalt::logError("The map refuses an extent that is not finite");
        redraw(); // the data is new all the same
        return;
    }
    const bool isFirst = m_extent.isNull();
    m_extent = area;
    if (!area.isNull() &&
        (isFirst || m_fitUntilSeen || !doTouch(m_transform.visibleExtent(), area)))
        fitTo(area, kMargin);
    onViewMoved();
    redraw();
}

void MapWindow::fitTo(const QRectF& extent, double margin)
{
    m_transform.fit(extent, margin);
    if (!m_isSeen)
        m_fitUntilSeen = Fit{extent, margin};
}

// --- painting ---

void MapWindow::onViewMoved()
{
    QToolTip::hideText(); // it names what was under the cursor before
    update();
    if (!m_paintTimer.isActive())
        m_paintTimer.start(kMoveDelayMs);
}

void MapWindow::redraw()
{
    m_isContentStale = true;
    m_paintTimer.start(0);
}

void MapWindow::redrawSoon()
{
    if (m_painter.viewInWork())
        m_isRedrawDue = true;
    else
        redraw();
}

void MapWindow::startPaint()
{
    if (!isVisible())
        return; // `showEvent` requests the paint
    const auto& inWork = m_painter.viewInWork();
    if (inWork && !m_isContentStale && isWorthFinishing(*inWork, m_transform))
        return; // else no picture would be finished in a long drag; `showPicture` asks again
    m_isContentStale = false;
    m_painter.request(makeJob());
}

bool MapWindow::isUpToDate() const
{
    return !m_isContentStale && !m_isRedrawDue && !m_paintTimer.isActive() && !m_painter.isAtWork();
}

MapPaintJob MapWindow::makeJob()
{
    MapPaintJob job;
    job.target.transform = m_transform;
    job.target.mapExtent = m_extent;
    job.target.status = basalt::Dictionary(get_system_status_dictionary());
    job.layers = m_layers.visibleLayers();
    for (ILayerViewer* layer : job.layers) {
        layer->preparePaint();
        job.layerNames.push_back(layer->GetName());
        if (layerpicture::isShown(layer->GetProperties()))
            job.firstOverPicture = job.layerNames.size();
    }
    job.background = palette().color(QPalette::Base);
    job.foreground = palette().color(QPalette::Text);
    job.font = fontForWorker(font());
    job.target.system = basalt::Dictionary(get_project_coord_transform().parameters());
    job.target.pixelRatio = m_pixelRatio = devicePixelRatioF();
    m_boundaryState = job.target.status.integer(status::kDrawBoundaryRect);
    return job;
}

void MapWindow::showPicture(const QImage& picture, const Transform& view)
{
    m_picture.set(picture, view);
    update();
    if (!m_painter.viewInWork() && std::exchange(m_isRedrawDue, false))
        redraw();
    if (!m_painter.viewInWork() && view != m_transform && !m_paintTimer.isActive())
        m_paintTimer.start(0);
    Q_EMIT pictureChanged();
}

void MapWindow::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    const IDictionary& values = get_system_status_dictionary();
    if (values.integer(status::kDrawBoundaryRect) != m_boundaryState)
        redraw();
    update(); // the scale bar may have come, gone or changed its unit
}

void MapWindow::refreshOverlay()
{
    for (Overlay& overlay : m_overlays)
        overlay.refresh();
    update();
}

void MapWindow::paintEvent(QPaintEvent* /*event*/)
{
    m_isSeen = true;
    m_fitUntilSeen.reset();
    if (!qFuzzyCompare(m_pixelRatio, devicePixelRatioF())) // the window moved to another screen
        redraw();
    QPainter painter(this);
    m_picture.draw(painter, m_transform, palette().color(QPalette::Base));
    for (const std::size_t number : {1U, 0U, 2U}) // from the bottom
        m_overlays[number].draw(painter, m_transform);
    if (!m_host.hasDocument())
        return; // nothing here has a scale
    const QRect bar = lum::drawScaleBar(painter, m_transform, lum::shownUnit());
    lum::drawNorthArrow(painter, m_transform);
    lum::drawLegend(painter, size(), m_layers.legend());
    lum::drawAttribution(painter, size(), m_layers.attributions(), bar);
}

void MapWindow::resizeEvent(QResizeEvent* /*event*/)
{
    m_transform.setSize(size());
    if (m_fitUntilSeen)
        m_transform.fit(m_fitUntilSeen->extent, m_fitUntilSeen->margin);
    onViewMoved();
}

void MapWindow::showEvent(QShowEvent* /*event*/)
{
    redraw();
}

void MapWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        redraw();
    QWidget::changeEvent(event);
}

// --- layers, overlays, reactors ---

ILayerViewer* MapWindow::addLayer(const QString& className, const IDictionary& properties)
{
    const auto& factory = extensible_factory_ILayerViewer();
    const std::string name = className.toStdString();
    if (!factory.knows(name)) {
        basalt::logDebug("Left out, no such layer: " + name);
        return nullptr;
    }
    auto layer = factory.make(name, dictionary_to_csa(properties).c_str(), &m_host);
    ILayerViewer* const added = layer.get();
    if (added == nullptr || !m_layers.add(std::move(layer)))
        return nullptr;
    added->SetTransform(&m_transform);
    redraw();
    return added;
}

IOverlay& MapWindow::overlay(int number)
{
    Q_ASSERT(number >= 0 && number < 3);
    return m_overlays[static_cast<std::size_t>(number)];
}

bool MapWindow::installReactor(const QString& name)
{
    if (!m_reactors.install(name))
        return false;
    setCursor(Qt::ArrowCursor);
    return true;
}

void MapWindow::installDefaultReactors()
{
    const std::string_view names = m_parameters.text("reactors", "ReactorDefault");
    static const QRegularExpression kBetween(QStringLiteral("[;\\s]+"));
    const QString list = lum::toQString(names);
    installReactor(QStringLiteral("ReactorDefault")); // ends the tool in use
    for (const QString& name : list.split(kBetween, Qt::SkipEmptyParts))
        installReactor(name);
}

void MapWindow::setMapCursor(const QCursor& cursor)
{
    setCursor(cursor);
}

// --- mouse and keyboard ---

bool MapWindow::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    showTip(static_cast<QHelpEvent*>(event)->pos());
    return true;
}

void MapWindow::showTip(const QPoint& screen)
{
    const QString tip = m_layers.tipAt(m_transform.ScreenToSurvey(QPointF(screen)));
    const QRect nearby(screen - QPoint(3, 3), QSize(7, 7)); // outside it the tip is hidden
    // A name from a file may look like markup.
    const QString shown = Qt::mightBeRichText(tip) ? Qt::convertFromPlainText(tip) : tip;
    QToolTip::showText(mapToGlobal(screen), shown, this, nearby);
}

void MapWindow::announcePosition(const QPointF& screen)
{
    const QPointF map = m_transform.ScreenToSurvey(screen);
    m_host.eventManager().publish(events::kXyChanged, payload::position(map.y(), map.x()).c_str(),
                                  0);
}

void MapWindow::mousePressEvent(QMouseEvent* event)
{
    if (const ButtonOperations* operations = operationsOf(event->button()))
        m_reactors.dispatch(operations->down, parametersOf(*event));
    else
        QWidget::mousePressEvent(event);
}

void MapWindow::mouseReleaseEvent(QMouseEvent* event)
{
    if (const ButtonOperations* operations = operationsOf(event->button()))
        m_reactors.dispatch(operations->up, parametersOf(*event));
    else
        QWidget::mouseReleaseEvent(event);
}

void MapWindow::mouseDoubleClickEvent(QMouseEvent* event)
{
    // Qt sends the second of two quick presses as a double click only. When no reactor handles it,
    // it counts as a press. Without this, every second of several quick drags would be lost.
    const bool isHandled = event->button() == Qt::LeftButton &&
                           m_reactors.dispatch(&IReactor::dblClick, parametersOf(*event));
    if (!isHandled)
        mousePressEvent(event);
}

void MapWindow::mouseMoveEvent(QMouseEvent* event)
{
    // The middle button must pan even when the tool handles every move.
    const auto first = event->buttons().testFlag(Qt::MiddleButton) ? ReactorStack::First::Standing
                                                                   : ReactorStack::First::Tool;
    m_reactors.dispatch(&IReactor::mouseMove, parametersOf(*event), first);
    announcePosition(event->localPos()); // last, since a pan moves the map under the cursor
}

void MapWindow::wheelEvent(QWheelEvent* event)
{
    event->setAccepted(m_reactors.dispatch(&IReactor::mouseWheel, parametersOf(*event)));
}

void MapWindow::keyPressEvent(QKeyEvent* event)
{
    const QPointF cursor = mapFromGlobal(QCursor::pos());
    if (!m_reactors.dispatch(&IReactor::keyPress, parametersOf(*event, cursor)))
        QWidget::keyPressEvent(event);
}

void MapWindow::keyReleaseEvent(QKeyEvent* event)
{
    const QPointF cursor = mapFromGlobal(QCursor::pos());
    if (!m_reactors.dispatch(&IReactor::keyRelease, parametersOf(*event, cursor)))
        QWidget::keyReleaseEvent(event);
}
