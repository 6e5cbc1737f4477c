#include "views/trees/LineTree.h"

#include "lum_desktop_sdkx/ComponentParameters.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "project/ui/ProjectState.h"
#include "protocol/Payloads.h"
#include "protocol/StatusKeys.h"
#include "views/trees/LineTreeView.h"

#include <QHBoxLayout>
#include <QIcon>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include <cstring>
#include <utility>

namespace {

constexpr int kLineNumberSize = 4; // characters, in the text that is searched for
constexpr int kMargin = 4;

/// The line number in a text such as "R10051234" or "10051234".
QString lineNumberIn(const QString& text)
{
    const QChar first = text.isEmpty() ? QChar() : text.front();
    const bool isLetter = (first >= QLatin1Char('A') && first <= QLatin1Char('Z')) ||
                          (first >= QLatin1Char('a') && first <= QLatin1Char('z'));
    return text.mid(isLetter ? 1 : 0, kLineNumberSize);
}

} // namespace

LineTree::LineTree(const char* config, IDesktopHost& host, const Setup& setup)
    : m_host(host), m_setup(setup), m_parameters(desktop::componentParameters(config)),
      m_subscription(*this, setup.refreshEvent, host.eventManager()), m_field(new QLineEdit(this)),
      m_view(new LineTreeView(this))
{
    makeLayout();
    connect(m_field, &QLineEdit::returnPressed, this, &LineTree::search);
    connect(m_view, &LineTreeView::chosen, this, &LineTree::choose);
    connect(m_view, &LineTreeView::reachedByKey, this, &LineTree::goTo);
    connect(m_view, &LineTreeView::menuRequestedAt, this, &LineTree::openMenu);
    connect(m_view, &LineTreeView::deleteRequested, this, &LineTree::deleteSelection);
}

void LineTree::makeLayout()
{
    m_field->setClearButtonEnabled(true);
    m_field->addAction(QIcon::fromTheme(QStringLiteral("edit-find")), QLineEdit::LeadingPosition);
    auto* const button = new QPushButton(tr("Search"), this);
    connect(button, &QPushButton::clicked, this, &LineTree::search);

    auto* const row = new QHBoxLayout;
    const int margin = dpi_scaled(kMargin);
    row->setContentsMargins(margin, margin, margin, margin);
    row->setSpacing(margin);
    row->addWidget(m_field, 1);
    row->addWidget(button);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addWidget(m_view, 1);
    setFocusProxy(m_view);
}

void LineTree::handleEvent(const char* eventName, const char* /*payload*/, int /*reserved*/)
{
    if (std::strcmp(eventName, m_setup.refreshEvent) == 0)
        rebuild();
}

void LineTree::followLine(const QString& lineNumber)
{
    LineItem* const item = m_view->findLine(lineNumber);
    if (item == nullptr)
        return;
    if (!item->isSelected()) { // one of several that the user has selected stays so
        m_view->selectOnly(*item);
        return;
    }
    m_view->setCurrentItem(item, 0, QItemSelectionModel::NoUpdate);
    m_view->scrollToItem(item);
}

LineTree::Place LineTree::leave()
{
    const std::string project(get_system_status_dictionary().text(status::kProjectPath));
    if (std::exchange(m_project, project) != project)
        return {};
    const LineItem* const current = m_view->current();
    return {m_view->selectedLines(),
            current != nullptr && current->isSelected() ? current->lineNumber() : QString(),
            m_view->verticalScrollBar()->value()};
}

LineItem* LineTree::goBackTo(const Place& place)
{
    m_view->selectLines(place.selected);
    LineItem* line = place.current.isEmpty() ? nullptr : m_view->findLine(place.current);
    if (line == nullptr && !m_view->selectedLines().isEmpty())
        line = m_view->firstSelected();
    if (line != nullptr) {
        m_view->setCurrentItem(line, 0, QItemSelectionModel::NoUpdate);
        m_view->verticalScrollBar()->setValue(place.scrolled);
    }
    return line;
}

void LineTree::publish(const char* event, const QByteArray& payload) const
{
    m_host.eventManager().publish(event, payload.isEmpty() ? nullptr : payload.constData(), 0);
}

void LineTree::addExpanding(QMenu& menu)
{
    menu.addAction(QIcon::fromTheme(QStringLiteral("expand-all")), tr("Expand All"), m_view,
                   &LineTreeView::expandAll);
    menu.addAction(QIcon::fromTheme(QStringLiteral("collapse-all")), tr("Collapse All"), m_view,
                   &LineTreeView::collapseAll);
}

QAction* LineTree::addEntry(QMenu& menu, const char* icon, const QString& text,
                            const std::function<void()>& action)
{
    QAction* const entry =
        menu.addAction(QIcon::fromTheme(QLatin1String(icon)), text, this, action);
    entry->setEnabled(ProjectState::isOpen());
    return entry;
}

void LineTree::choose(const LineItem& item)
{
    announce(item);
    m_host.windows().activate(QLatin1String(m_setup.table));
}

void LineTree::goTo(const LineItem& item)
{
    announce(item);
    m_host.windows().reveal(QLatin1String(m_setup.table), {QLatin1String(m_setup.className)});
}

void LineTree::search()
{
    m_view->deselectBelowRoot();
    const QString text = m_field->text();
    const QString lineNumber = lineNumberIn(text);
    for (int i = 0; i < m_view->root()->childCount(); ++i) {
        auto& item = static_cast<LineItem&>(*m_view->root()->child(i));
        if (!item.isLine() || item.lineNumber() != lineNumber)
            continue;
        m_view->selectOnly(item);
        choose(item);
        publish(m_setup.selectPointEvent, payload::linePoint(lineNumber, text));
        return;
    }
}

void LineTree::openMenu(const QPoint& globalPos)
{
    const LineItem* const first = m_view->firstSelected();
    if (first == nullptr)
        return;
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, *first);
    menu->popup(globalPos);
}
