#include "views/find/FindBar.h"

#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/events/EventNames.h"
#include "lum_sdk/events/PlatformEvents.h"
#include "lum_sdk/GroupedNumber.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/ILineList.h"
#include "project/IPointList.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "views/find/FoundList.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <iterator>

namespace {

constexpr int kWidth = 460;
constexpr int kMargin = 6;
constexpr int kLongestText = 4000; ///< of a line and a point
constexpr int kTellMs = 8000;

std::pair<std::uint64_t, std::uint64_t> revisions()
{
    if (!ProjectState::hasData())
        return {};
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    return {manager.designPoints().revision(), manager.surveyPoints().revision()};
}

/// Moves the map to the middle of the line.
template <class Line>
void bringIntoView(IDesktopHost& host, const Line* line)
{
    if (line != nullptr && line->size() > 0)
        PointHighlight::bringIntoView(
            host, *std::next(line->begin(), static_cast<std::ptrdiff_t>(line->size() / 2)));
}

} // namespace

FindBar* FindBar::of(IDesktopHost& host)
{
    QWidget* const frame = host.dialogParent();
    if (frame == nullptr)
        return nullptr;
    if (auto* const bar = frame->findChild<FindBar*>(QString(), Qt::FindDirectChildrenOnly))
        return bar;
    return new FindBar(host, *frame); // the frame owns it
}

FindBar::FindBar(IDesktopHost& host, QWidget& frame)
    : QFrame(&frame), m_host(host), m_field(new QLineEdit(this)), m_told(new QLabel(this)),
      m_list(new FoundList(this)),
      m_subscription(*this,
                     lum::eventNames({events::kUpdateSystemStatus, events::kRefreshDesignLayer,
                                      events::kRefreshSurveyLayer, events::kRefreshDesignTable,
                                      events::kRefreshSurveyTable}),
                     host.eventManager())
{
    setObjectName(QStringLiteral("FindBar"));
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Raised);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_NoMousePropagation);
    setCursor(Qt::ArrowCursor);
    connect(m_list, &FoundList::rowClicked, this, [this](int row) {
        setCurrent(row);
        goToCurrent();
    });
    auto* const column = new QVBoxLayout(this);
    const int margin = dpi_scaled(kMargin);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    column->addWidget(makeFieldRow());
    column->addWidget(m_list);
    column->setSizeConstraint(QLayout::SetNoConstraint);
    frame.installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget*, QWidget* now) {
        if (!isHidden() && now != nullptr && now != this && !isAncestorOf(now))
            unfold(false); // what the user turns to must be seen
    });
    hide();
}

QWidget* FindBar::makeFieldRow()
{
    auto* const rowWidget = new QWidget(this);
    auto* const row = new QHBoxLayout(rowWidget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(dpi_scaled(kMargin) / 2);
    m_field->setPlaceholderText(tr("Line or point, or line/point"));
    m_field->setAccessibleName(tr("Find lines and points"));
    m_field->setClearButtonEnabled(true);
    m_field->setMaxLength(kLongestText);
    m_field->addAction(QIcon::fromTheme(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    connect(m_field, &QLineEdit::textChanged, this, [this] {
        m_current = 0;
        m_isThere = false;
        search();
        unfold(true);
    });
    row->addWidget(m_field, 1);
    row->addWidget(m_told);
    const auto addButton = [&](const char* icon, const QString& tip) {
        auto* const button = new QToolButton(rowWidget);
        button->setIcon(QIcon::fromTheme(QLatin1String(icon)));
        button->setToolTip(tip);
        button->setAccessibleName(tip);
        button->setAutoRaise(true);
        row->addWidget(button);
        return button;
    };
    connect(addButton("go-up", tr("Previous match (Shift+F3)")), &QToolButton::clicked, this,
            [this] { step(false); });
    connect(addButton("go-down", tr("Next match (F3)")), &QToolButton::clicked, this,
            [this] { step(true); });
    connect(addButton("window-close", tr("Close (Esc)")), &QToolButton::clicked, this,
            &FindBar::giveBack);
    return rowWidget;
}

void FindBar::open()
{
    QWidget* const focused = QApplication::focusWidget();
    if (focused != nullptr && focused != this && !isAncestorOf(focused))
        m_before = focused;
    searchWhenChanged();
    show();
    raise();
    lieOverMap();
    window()->activateWindow(); // the key may come from a window that left the frame
    m_field->setFocus(Qt::ShortcutFocusReason);
    m_field->selectAll();
    unfold(true);
}

void FindBar::giveBack()
{
    QWidget* const before = m_before;
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    if (hadFocus && before != nullptr && before->isVisible()) {
        before->activateWindow();
        before->setFocus(Qt::OtherFocusReason);
    }
    hide();
}

void FindBar::search()
{
    m_revisions = revisions();
    m_found = {};
    if (ProjectState::hasData()) {
        DataProcessDataManager& manager = DataProcessDataManager::instance();
        m_found = findPlaces(manager.designPoints(), manager.surveyPoints(),
                             m_field->text().toStdString());
    }
    m_current = std::clamp(m_current, 0, std::max(0, static_cast<int>(m_found.places.size()) - 1));
    m_list->setPlaces(m_found.places);
    m_list->setCurrentRow(m_current);
    lieOverMap();
    tell();
}

void FindBar::searchWhenChanged()
{
    if (revisions() == m_revisions)
        return;
    const std::vector<FoundPlace> before = std::move(m_found.places);
    const auto current = static_cast<std::size_t>(m_current);
    const bool wasThere = m_isThere;
    search();
    const auto same = current < before.size()
                          ? std::find(m_found.places.begin(), m_found.places.end(), before[current])
                          : m_found.places.end();
    const bool isLeft = same != m_found.places.end();
    if (isLeft)
        setCurrent(static_cast<int>(same - m_found.places.begin()));
    m_isThere = wasThere && isLeft;
}

void FindBar::unfold(bool isUnfolded)
{
    m_list->setVisible(isUnfolded && !m_found.places.empty());
    lieOverMap();
}

void FindBar::lieOverMap()
{
    QWidget& frame = *parentWidget();
    QRect room = frame.rect();
    if (const auto* const window = qobject_cast<QMainWindow*>(&frame);
        window != nullptr && window->centralWidget() != nullptr)
        room = window->centralWidget()->geometry();
    if (IWindow* const map = m_host.windows().find(QStringLiteral("DataMap"))) {
        QWidget* const widget = map->widget();
        if (widget != nullptr && widget->isVisible() && widget->window() == &frame)
            room.setTop(widget->mapTo(&frame, QPoint()).y());
    }
    const int margin = dpi_scaled(kMargin);
    const int width = std::min(dpi_scaled(kWidth), frame.width());
    int height = m_field->sizeHint().height() + 2 * (margin + frameWidth());
    if (!m_list->isHidden()) {
        m_list->shareWidth(width);
        height += margin + m_list->neededHeight();
    }
    const int left = room.center().x() - width / 2;
    setGeometry(std::max(0, left), room.top(), width,
                std::min(height, frame.height() - room.top()));
}

void FindBar::setCurrent(int index)
{
    m_current = index;
    m_isThere = false;
    m_list->setCurrentRow(index);
    tell();
}

void FindBar::step(bool isForward)
{
    searchWhenChanged();
    const int count = static_cast<int>(m_found.places.size());
    if (m_field->text().trimmed().isEmpty()) {
        open();
        return;
    }
    if (count > 0 && m_isThere)
        setCurrent((m_current + (isForward ? 1 : count - 1)) % count);
    goToCurrent();
    auto* const frame = qobject_cast<QMainWindow*>(parentWidget());
    if (isHidden() && frame != nullptr)
        frame->statusBar()->showMessage(said(), kTellMs);
}

void FindBar::goToCurrent()
{
    searchWhenChanged();
    if (m_found.places.empty())
        return;
    const FoundPlace place = m_found.places[static_cast<std::size_t>(m_current)];
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    goTo(place);
    m_isThere = true;
    unfold(false);
    if (hadFocus)
        m_field->setFocus();
    tell();
}

void FindBar::goTo(const FoundPlace& place)
{
    const QString table =
        place.isSurvey ? QStringLiteral("Survey Data List") : QStringLiteral("Design Data List");
    const QString line = lum::toQString(place.line);
    IWindowRegistry& windows = m_host.windows();
    if (place.isLine()) {
        m_host.eventManager().publish(place.isSurvey ? events::kSurveyLineSwitched
                                                     : events::kDesignLineSwitched,
                                      payload::line(line).constData(), 0);
        if (auto* const tree = windows.findAs<ILineList>(
                place.isSurvey ? QStringLiteral("Survey Lines") : QStringLiteral("Design Lines")))
            tree->followLine(line);
        DataProcessDataManager& manager = DataProcessDataManager::instance();
        if (place.isSurvey)
            bringIntoView(m_host, manager.surveyPoints().findLine(place.line));
        else
            bringIntoView(m_host, manager.designPoints().findLine(place.line));
    } else if (auto* const list = windows.findAs<IPointList>(table)) {
        list->selectPoint(line, lum::toQString(place.point));
    }
    windows.reveal(table, {QStringLiteral("DataMap")});
}

void FindBar::tell()
{
    const auto shown = static_cast<int>(m_found.places.size());
    QString text;
    QString details;
    if (!ProjectState::hasData()) {
        text = tr("No project is open.");
    } else if (m_field->text().trimmed().isEmpty()) {
        text.clear();
    } else if (shown == 0) {
        DataProcessDataManager& manager = DataProcessDataManager::instance();
        const bool isEmpty = manager.designPoints().empty() && manager.surveyPoints().empty();
        text = isEmpty ? tr("The project has no points.") : tr("No match.");
    } else {
        text = tr("%1 of %2").arg(m_current + 1).arg(shown);
        if (m_found.count > m_found.places.size()) {
            text += QLatin1String(" ") + tr("(%1 found)").arg(lum::groupedNumber(m_found.count));
            details = tr("The best %1 matches are listed. Type more of the number to see others.")
                          .arg(shown);
        }
    }
    m_told->setText(text);
    m_told->setToolTip(details);
}

QString FindBar::said() const
{
    if (m_found.places.empty())
        return m_told->text();
    const FoundPlace& place = m_found.places[static_cast<std::size_t>(m_current)];
    const QString line = lum::toQString(place.line);
    const QString point = lum::toQString(place.point);
    QString name;
    if (place.isLine())
        name = place.isSurvey ? tr("survey line %1") : tr("design line %1");
    else
        name = place.isSurvey ? tr("survey result %1/%2") : tr("design point %1/%2");
    name = place.isLine() ? name.arg(line) : name.arg(line, point);
    return tr("%1: %2", "3 of 50: survey line 1001").arg(m_told->text(), name);
}

void FindBar::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    if (isHidden()) // it searches when it is asked for
        return;
    searchWhenChanged();
    unfold(!m_list->isHidden());
}

bool FindBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && !isHidden())
        lieOverMap();
    return QFrame::eventFilter(watched, event);
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    const int last = static_cast<int>(m_found.places.size()) - 1;
    const auto move = [&](int rows) {
        if (last >= 0 && !m_list->isHidden())
            setCurrent(std::clamp(m_current + rows, 0, last));
        unfold(true);
    };
    event->accept(); // nothing of it is for the map below
    switch (event->key()) {
    case Qt::Key_Escape:
        giveBack();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        goToCurrent();
        break;
    case Qt::Key_Up:
        move(-1);
        break;
    case Qt::Key_Down:
        move(1);
        break;
    case Qt::Key_PageUp:
        move(1 - FoundList::kMostRows);
        break;
    case Qt::Key_PageDown:
        move(FoundList::kMostRows - 1);
        break;
    default:
        break;
    }
}
