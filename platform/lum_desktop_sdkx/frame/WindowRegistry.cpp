#include "lum_desktop_sdkx/frame/WindowRegistry.h"

#include "basalt_utilities/Dictionary.h"
#include "basalt_utilities/ILogger.h"
#include "basalt_utilities/KeyList.h"
#include "lum_desktop_sdkx/frame/LayoutText.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/Text.h"

#include <QAction>
#include <QIcon>
#include <QSplitter>
#include <QStatusBar>
#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/DockWidget.h>

#include <algorithm>

using Area = FrameLayout::Area;

namespace {

// The parts of a small frame that a dock takes at most.
constexpr double kWidestShare = 0.25;
constexpr double kHighestShare = 0.42;

/// Sets the width or height of a dock area. Its neighbour takes the difference.
void giveSize(ads::CDockAreaWidget& area, Qt::Orientation orientation, int size)
{
    QWidget* child = &area;
    auto* splitter = qobject_cast<QSplitter*>(area.parentWidget());
    while (splitter != nullptr && splitter->orientation() != orientation) { // go farther up
        child = splitter;
        splitter = qobject_cast<QSplitter*>(splitter->parentWidget());
    }
    if (splitter == nullptr || splitter->count() < 2)
        return;
    QList<int> sizes = splitter->sizes();
    const int index = splitter->indexOf(child);
    const int neighbour = index == 0 ? 1 : index - 1;
    const int missing = size - sizes[index];
    sizes[index] += missing;
    sizes[neighbour] = std::max(sizes[neighbour] - missing, 1);
    splitter->setSizes(sizes);
}

} // namespace

IWindow* WindowRegistry::find(const QString& name) const
{
    const Entry* found = entry(name);
    return found != nullptr ? found->window.get() : nullptr;
}

bool WindowRegistry::activate(const QString& name)
{
    const Entry* found = entry(name);
    if (found == nullptr)
        return false;
    if (found->dock != nullptr) {
        found->dock->toggleView(true);
        found->dock->raise();
    }
    found->window->onActivated();
    return true;
}

bool WindowRegistry::reveal(const QString& name, const QStringList& uncovered)
{
    const Entry* const found = entry(name);
    if (found == nullptr || found->dock == nullptr || found->dock->isClosed())
        return false;
    const bool isBehind = std::ranges::any_of(uncovered, [&](const QString& otherName) {
        const Entry* const other = entry(otherName);
        return other != nullptr && other->dock != nullptr && !other->dock->isClosed() &&
               other->dock->dockAreaWidget() == found->dock->dockAreaWidget();
    });
    if (!isBehind)
        found->dock->setAsCurrentTab();
    return found->dock->isCurrentTab();
}

bool WindowRegistry::close(const QString& name)
{
    const Entry* const found = entry(name);
    if (found == nullptr || found->dock == nullptr)
        return false;
    found->dock->toggleView(false);
    return true;
}

IWindow* WindowRegistry::open(const QString& className, const IDictionary& parameters)
{
    const auto text = [&](const char* key, const QString& fallback) {
        const auto value = parameters.find(key);
        return value ? lum::toQString(*value) : fallback;
    };
    if (const Entry* found = entry(className)) {
        const QString title = desktop::layoutText(text("title", found->layout.caption));
        if (found->dock != nullptr)
            found->dock->setWindowTitle(title);
    } else {
        basalt::Dictionary config(parameters);
        config.set("class", className.toStdString());
        FrameLayout::Window layout;
        layout.className = className;
        layout.name = text("caption", className);
        layout.caption = text("title", layout.name);
        layout.config = QByteArray::fromStdString(dictionary_to_csa(config));
        openWindow(layout);
    }
    if (parameters.integer("isSetActive") != 0)
        activate(className);
    return find(className);
}

void WindowRegistry::attach(ads::CDockManager* docks, QStatusBar* statusBar)
{
    m_docks = docks;
    m_statusBar = statusBar;
    const auto favour = [this] { favourCenter(); }; // each change makes new splitters
    QObject::connect(docks, &ads::CDockManager::dockAreasAdded, docks, favour);
    QObject::connect(docks, &ads::CDockManager::dockAreasRemoved, docks, favour);
    QObject::connect(docks, &ads::CDockManager::stateRestored, docks, favour);
}

IWindow* WindowRegistry::openWindow(const FrameLayout::Window& layout)
{
    const std::string className = layout.className.toStdString();
    if (!extensible_factory_IWindow().knows(className)) {
        basalt::logDebug("Left out, no such window: " + className);
        return nullptr;
    }
    auto window = extensible_factory_IWindow().make(className, layout.config.constData(), m_host);
    if (!window)
        return nullptr; // `make` has logged why
    IWindow* const opened = window.get();
    ads::CDockWidget* dock = nullptr;
    if (layout.area == Area::Status)
        m_statusBar->addPermanentWidget(opened->widget());
    else
        dock = makeDock(layout, *opened);
    m_entries.push_back({layout, std::move(window), dock});
    return opened;
}

ads::CDockWidget* WindowRegistry::makeDock(const FrameLayout::Window& layout, IWindow& window)
{
    auto* const dock = new ads::CDockWidget(desktop::layoutText(layout.caption), m_docks);
    dock->setObjectName(layout.name);
    dock->setWidget(window.widget(), ads::CDockWidget::ForceNoScrollArea);
    dock->setMinimumSizeHintMode(ads::CDockWidget::MinimumSizeHintFromDockWidget);
    dock->setFeature(ads::CDockWidget::DockWidgetClosable, layout.isClosable);
    if (!layout.icon.isEmpty())
        dock->setIcon(QIcon::fromTheme(layout.icon));
    QObject::connect(dock, &ads::CDockWidget::closed, window.widget(),
                     [&window] { window.onClosed(); });
    placeDock(dock, layout);
    return dock;
}

void WindowRegistry::placeDock(ads::CDockWidget* dock, const FrameLayout::Window& layout)
{
    const Entry* neighbour = lastIn(layout.area);
    if (neighbour != nullptr) {
        ads::CDockAreaWidget* const area = neighbour->dock->dockAreaWidget();
        ads::CDockWidget* const inFront = area->currentDockWidget();
        m_docks->addDockWidget(
            layout.isBelow ? ads::BottomDockWidgetArea : ads::CenterDockWidgetArea, dock, area);
        if (!layout.isBelow)
            inFront->setAsCurrentTab(); // a new tab must not cover what the user looks at
        return;
    }
    const Entry* center = lastIn(Area::Center);
    ads::CDockAreaWidget* const centerArea =
        center != nullptr ? center->dock->dockAreaWidget() : nullptr;
    switch (layout.area) {
    case Area::Left:
        m_docks->addDockWidget(ads::LeftDockWidgetArea, dock);
        break;
    case Area::Right:
        m_docks->addDockWidget(ads::RightDockWidgetArea, dock);
        break;
    case Area::Bottom:
        m_docks->addDockWidget(ads::BottomDockWidgetArea, dock, centerArea);
        break;
    case Area::Center:
    case Area::Status:
        m_docks->addDockWidget(ads::CenterDockWidgetArea, dock);
        break;
    }
}

const WindowRegistry::Entry* WindowRegistry::lastIn(Area area) const
{
    const auto found =
        std::find_if(m_entries.rbegin(), m_entries.rend(), [area](const Entry& each) {
            return each.dock != nullptr && each.layout.area == area &&
                   each.dock->dockAreaWidget() != nullptr;
        });
    return found == m_entries.rend() ? nullptr : &*found;
}

void WindowRegistry::resetLayout()
{
    if (m_defaultState.isEmpty())
        return;
    m_docks->restoreState(m_defaultState, m_stateVersion);
    applySizes();
}

void WindowRegistry::rememberDefaultLayout()
{
    favourCenter();
    // The docking library hides a window that a saved state does not know. The version of the state
    // is therefore made from the names of the windows, and a state of other windows is refused.
    QStringList names;
    for (const Entry& each : m_entries) {
        if (each.dock != nullptr)
            names << each.layout.name;
    }
    names.sort();
    const QByteArray text = names.join(QLatin1Char(',')).toUtf8();
    m_stateVersion = qChecksum(text.constData(), static_cast<uint>(text.size()));
    m_defaultState = m_docks->saveState(m_stateVersion);
}

void WindowRegistry::applySizes()
{
    for (const Entry& each : m_entries) {
        ads::CDockAreaWidget* const area =
            each.dock != nullptr ? each.dock->dockAreaWidget() : nullptr;
        if (area == nullptr)
            continue;
        const auto atMost = [](int wanted, double share) {
            return std::min(dpi_scaled(wanted), static_cast<int>(share));
        };
        if (each.layout.width > 0)
            giveSize(*area, Qt::Horizontal,
                     atMost(each.layout.width, m_docks->width() * kWidestShare));
        if (each.layout.height > 0)
            giveSize(*area, Qt::Vertical,
                     atMost(each.layout.height, m_docks->height() * kHighestShare));
    }
}

void WindowRegistry::favourCenter()
{
    const Entry* center = lastIn(Area::Center);
    QWidget* child = center != nullptr ? center->dock->dockAreaWidget() : nullptr;
    while (child != nullptr) {
        auto* const splitter = qobject_cast<QSplitter*>(child->parentWidget());
        for (int i = 0; splitter != nullptr && i < splitter->count(); ++i)
            splitter->setStretchFactor(i, splitter->widget(i) == child ? 1 : 0);
        child = splitter;
    }
}

QByteArray WindowRegistry::saveState() const
{
    return m_docks->saveState(m_stateVersion);
}

bool WindowRegistry::restoreState(const QByteArray& state)
{
    return !state.isEmpty() && m_docks->restoreState(state, m_stateVersion);
}

std::vector<QAction*> WindowRegistry::toggleActions() const
{
    std::vector<QAction*> actions;
    for (const Entry& each : m_entries) {
        if (each.dock != nullptr && each.layout.isClosable)
            actions.push_back(each.dock->toggleViewAction());
    }
    return actions;
}

void WindowRegistry::clear()
{
    while (!m_entries.empty()) { // the last one first: a window may use those opened before it
        Entry& last = m_entries.back();
        if (last.dock != nullptr) {
            last.dock->takeWidget();
            if (last.dock->parent() == nullptr) // a reset took it from a dock that was opened later
                last.dock->setParent(m_docks);
        } else {
            m_statusBar->removeWidget(last.window->widget());
        }
        last.window->widget()->setParent(nullptr);
        m_entries.pop_back();
    }
}

const WindowRegistry::Entry* WindowRegistry::entry(const QString& name) const
{
    const auto findBy = [this](auto matches) {
        const auto found = std::find_if(m_entries.begin(), m_entries.end(), matches);
        return found == m_entries.end() ? nullptr : &*found;
    };
    if (const Entry* found = findBy([&](const Entry& e) { return e.layout.className == name; }))
        return found;
    if (const Entry* found = findBy([&](const Entry& e) { return e.layout.name == name; }))
        return found;
    return findBy([&](const Entry& e) {
        return e.layout.caption == name || desktop::layoutText(e.layout.caption) == name;
    });
}
