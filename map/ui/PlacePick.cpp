#include "map/ui/PlacePick.h"

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IMapWindow.h"
#include "lum_desktop_sdkx/IOverlay.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/Transform.h"
#include "map/ui/FindDataLayer.h"
#include "map/ui/IDataLayer.h"
#include "map/ui/MouseMode.h"

#include <QApplication>
#include <QColor>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPolygonF>
#include <QWidget>

#include <cmath>
#include <optional>
#include <string>

namespace {

constexpr int kOverlay = 2;
const QColor kColor(200, 0, 200); // neither a selection's nor a line's

/// The pick under way; there is one at most.
QPointer<PlacePick>& current()
{
    static QPointer<PlacePick> pick;
    return pick;
}

double rounded(double metres)
{
    return std::round(metres * 1000) / 1000;
}

bool isEscape(const QEvent& event)
{
    return (event.type() == QEvent::KeyPress || event.type() == QEvent::ShortcutOverride) &&
           static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

/// Whether a menu or a question is open, which Escape closes.
bool hasOwnEscape()
{
    return QApplication::activePopupWidget() != nullptr ||
           QApplication::activeModalWidget() != nullptr;
}

bool isMouse(QEvent::Type type)
{
    return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonRelease ||
           type == QEvent::MouseButtonDblClick || type == QEvent::MouseMove;
}

} // namespace

PlacePick::PlacePick(IDesktopHost& host, QWidget* dialog)
    : QObject(dialog), m_host(host), m_dialog(*dialog),
      m_subscription(*this, events::kUpdateSystemStatus, host.eventManager())
{
}

PlacePick::~PlacePick()
{
    if (isPicking())
        restoreMap();
}

bool PlacePick::start(int clicks)
{
    Q_ASSERT(clicks > 0);
    if (PlacePick* const other = current())
        other->cancel();
    IWindow* const window = m_host.windows().find(QStringLiteral("DataMap"));
    m_map = dynamic_cast<IMapWindow*>(window);
    if (m_map == nullptr || !m_host.hasDocument()) {
        m_host.tell(tr("Places are picked on the map of an open project."));
        return false;
    }
    m_widget = window->widget();
    m_clicks = clicks;
    m_toolCursor = m_widget->cursor();
    m_toolMode = MouseMode::current();
    current() = this;
    m_widget->installEventFilter(this); // stays, for what follows the last click
    qApp->installEventFilter(this);     // for Escape in any window
    m_map->setMapCursor(Qt::CrossCursor);
    m_host.windows().activate(QStringLiteral("DataMap"));
    m_widget->activateWindow();
    m_widget->setFocus();
    showHint();
    return true;
}

void PlacePick::cancel()
{
    if (isPicking())
        finish({});
}

void PlacePick::restoreMap()
{
    qApp->removeEventFilter(this);
    m_clicks = 0;
    m_places.clear();
    current() = nullptr;
    if (m_widget == nullptr)
        return;
    if (MouseMode::current() == m_toolMode) // else a new tool has set its own
        m_map->setMapCursor(m_toolCursor);
    m_map->overlay(kOverlay).clear();
    m_map->refreshOverlay();
}

/// \param places empty when nothing was picked
void PlacePick::finish(const QVector<PickedPlace>& places)
{
    restoreMap();
    m_host.tell({});
    if (!places.isEmpty())
        Q_EMIT picked(places);
    Q_EMIT ended();
}

void PlacePick::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    if (!m_host.hasDocument() || MouseMode::current() != m_toolMode)
        cancel();
}

// --- mouse and keyboard ---

bool PlacePick::eventFilter(QObject* watched, QEvent* event)
{
    if (isPicking() && isEscape(*event) && !hasOwnEscape()) {
        event->accept();
        if (event->type() == QEvent::KeyPress) { // which follows a shortcut that was overridden
            cancel();
            returnToDialog();
        }
        return true;
    }
    if (watched == &m_dialog && event->type() == QEvent::Hide)
        cancel();
    return watched == m_widget && isMouse(event->type()) &&
           onMouse(static_cast<const QMouseEvent&>(*event));
}

/// \returns whether the map must not get the event
bool PlacePick::onMouse(const QMouseEvent& event)
{
    switch (event.type()) {
    case QEvent::MouseButtonPress:
        return isPicking() && onPress(event);
    case QEvent::MouseButtonDblClick: // the second press of two at one place, maybe the last one
        return m_sinceLastPress.isValid() &&
               m_sinceLastPress.elapsed() <= QApplication::doubleClickInterval() &&
               event.button() == Qt::LeftButton;
    case QEvent::MouseMove:
        if (isPicking())
            showMarks(placeAt(event.localPos()));
        return false; // the middle button pans, and the status bar shows the position
    default:
        break;
    }
    if (!m_pressed.testFlag(event.button()))
        return false;
    m_pressed.setFlag(event.button(), false);
    if (event.button() == Qt::RightButton && isPicking()) {
        cancel();
        returnToDialog();
    }
    return true;
}

bool PlacePick::onPress(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton && event.button() != Qt::RightButton)
        return false;
    m_pressed.setFlag(event.button());
    if (event.button() == Qt::LeftButton) {
        m_sinceLastPress.start();
        take(placeAt(event.localPos()));
    }
    return true;
}

void PlacePick::take(const PickedPlace& place)
{
    m_places.append(place);
    if (m_places.size() < m_clicks) {
        showHint();
        showMarks(place);
        return;
    }
    finish(QVector<PickedPlace>(m_places));
    returnToDialog();
}

void PlacePick::returnToDialog()
{
    if (!m_dialog.isVisible())
        return;
    m_dialog.raise();
    m_dialog.activateWindow();
}

// --- places ---

const IDataLayer* PlacePick::dataLayer() const
{
    const IDataLayer* const layer = findDataLayer(m_host);
    return layer != nullptr && layer->IsVisible() ? layer : nullptr;
}

PickedPlace PlacePick::placeAt(const QPointF& screen) const
{
    const QPointF map = m_map->transform().ScreenToSurvey(screen);
    const IDataLayer* const layer = dataLayer();
    if (const auto hit = layer != nullptr ? layer->pointAt(map) : std::nullopt)
        return {hit->grid.north, hit->grid.east, hit->name};
    PickedPlace place;
    m_host.coordTransformHelper().mapToProject(map, place.north, place.east);
    place.north = rounded(place.north);
    place.east = rounded(place.east);
    return place;
}

QPointF PlacePick::toMap(const PickedPlace& place) const
{
    return m_host.coordTransformHelper().projectToMap(place.north, place.east);
}

void PlacePick::showHint()
{
    if (m_clicks == 1)
        m_host.tell(
            tr("Click a place on the map, free or on a point. Esc or a right click cancels."));
    else
        m_host.tell(
            tr("Click place %1 of %2 on the map, free or on a point. Esc or a right click cancels.")
                .arg(m_places.size() + 1)
                .arg(m_clicks));
}

void PlacePick::showMarks(const PickedPlace& underCursor)
{
    QPolygonF marks;
    std::string shapes;
    for (const PickedPlace& place : m_places) {
        marks << toMap(place);
        shapes += "cross ";
    }
    QPolygonF line;
    if (!marks.isEmpty())
        line << marks.last() << toMap(underCursor);
    if (!underCursor.point.isEmpty()) {
        marks << toMap(underCursor);
        shapes += "ring";
    }
    basalt::Dictionary properties;
    properties.set("point_radius", "5");
    properties.set("vertex_shapes", shapes);
    IOverlay& overlay = m_map->overlay(kOverlay);
    overlay.clear();
    overlay.setProperties(properties);
    overlay.setLineStyle(Qt::DashLine);
    overlay.setLineWidth(2);
    overlay.setColor(kColor);
    overlay.setLine(line);
    overlay.setVertices(marks);
    m_map->refreshOverlay();
}
