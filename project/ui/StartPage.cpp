#include "project/ui/StartPage.h"

#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "lum_sdk/Text.h"
#include "project/RecentProjects.h"
#include "project/ui/ProjectSession.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"

#include <QCommandLinkButton>
#include <QDir>
#include <QFileInfo>
#include <QFontInfo>
#include <QGuiApplication>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int kColumnWidth = 560;
constexpr int kMargin = 24;

QLabel* makeHeading(const QString& text, double factor, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    QFont font = label->font();
    font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
    label->setFont(font);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

StartPage::StartPage(IDesktopHost& host, QWidget& place)
    : QWidget(&place), m_host(host), m_place(place), m_commands(new QVBoxLayout),
      m_recent(new QVBoxLayout),
      m_subscription(*this, events::kUpdateSystemStatus, host.eventManager())
{
    setObjectName(QStringLiteral("StartPage"));
    setPalette(QGuiApplication::palette()); // the map is white in every theme, this page is not
    setCursor(Qt::ArrowCursor);
    setAttribute(Qt::WA_NoMousePropagation); // the map below must not move
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);

    auto* const area = new QScrollArea(this);
    area->setFrameStyle(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setBackgroundRole(QPalette::Base);
    area->setWidgetResizable(true);
    area->setAlignment(Qt::AlignHCenter);
    area->setWidget(makeContent());
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);

    addCommand("New Project", tr("&New Project..."),
               tr("Make a folder for a survey and choose its coordinate system"), "document-new");
    addCommand("Open Project", tr("&Open Project..."), tr("Choose a project file"),
               "document-open-folder");
    addCommand("Demo Survey", tr("Demo &Survey..."),
               tr("An invented survey with known faults, to try everything on"), "games-hint");
    place.installEventFilter(this);
    resize(place.size());
    refresh();
}

QWidget* StartPage::makeContent()
{
    auto* const content = new QWidget;
    content->setBackgroundRole(QPalette::Base);
    content->setMaximumWidth(dpi_scaled(kColumnWidth));
    auto* const column = new QVBoxLayout(content);
    const int margin = dpi_scaled(kMargin);
    column->setContentsMargins(margin, margin, margin, margin);
    const std::string_view program = get_system_config_parameter().dictionary().text("name");
    column->addWidget(makeHeading(lum::toQString(program), 2, content));
    column->addWidget(new QLabel(tr("No project is open."), content));
    column->addSpacing(dpi_scaled(8));
    column->addLayout(m_commands);
    column->addLayout(m_recent);
    column->addStretch(1);
    return content;
}

void StartPage::addCommand(const char* name, const QString& caption, const QString& description,
                           const char* icon)
{
    const QString command = QLatin1String(name);
    if (m_host.commands().find(command) == nullptr)
        return; // the layout has left it out
    QCommandLinkButton* const button = addButton(*m_commands, caption, description, icon);
    button->setObjectName(command);
    connect(button, &QCommandLinkButton::clicked, this,
            [this, command] { m_host.commands().execute(command); });
}

QCommandLinkButton* StartPage::addButton(QVBoxLayout& column, const QString& caption,
                                         const QString& description, const char* icon)
{
    auto* const button = new QCommandLinkButton(caption, description, this);
    button->setIcon(QIcon::fromTheme(QLatin1String(icon)));
    button->setIconSize(QSize(dpi_scaled(22), dpi_scaled(22)));
    button->setAutoDefault(true); // Enter presses it
    column.addWidget(button);
    return button;
}

void StartPage::listRecentProjects()
{
    const QStringList files = RecentProjects::list();
    if (files == m_listed)
        return;
    m_listed = files;
    while (const auto item = std::unique_ptr<QLayoutItem>(m_recent->takeAt(0))) {
        if (item->widget() != nullptr)
            item->widget()->deleteLater(); // it may be the button that was pressed
    }
    if (files.isEmpty())
        return;
    m_recent->addSpacing(dpi_scaled(16));
    m_recent->addWidget(makeHeading(tr("Recent projects"), 1.3, this));
    for (int i = 0; i < files.size(); ++i) {
        const QString& file = files[i];
        QString name = QFileInfo(file).completeBaseName();
        name.replace(QLatin1Char('&'), QLatin1String("&&"));
        const QString folder = QDir::toNativeSeparators(QFileInfo(file).path());
        const QString shown =
            fontMetrics().elidedText(folder, Qt::ElideMiddle, dpi_scaled(kColumnWidth) * 4 / 5);
        QCommandLinkButton* const button =
            addButton(*m_recent, QStringLiteral("&%1  %2").arg(i + 1).arg(name), shown,
                      "document-open-recent");
        button->setObjectName(file);
        button->setToolTip(QDir::toNativeSeparators(file));
        connect(button, &QCommandLinkButton::clicked, this, [this, file] { openRecent(file); });
    }
}

void StartPage::openRecent(const QString& file)
{
    ProjectSession::openFile(m_host, file);
    // A file that is gone has left the list, here and in the menu.
    m_host.eventManager().publish(events::kUpdateSystemStatus, nullptr, 0);
}

void StartPage::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    refresh();
}

void StartPage::refresh()
{
    const bool isWanted = !ProjectState::isOpen();
    if (isWanted)
        listRecentProjects();
    if (isWanted == !isHidden())
        return;
    const bool hadFocus = isAncestorOf(focusWidget());
    setVisible(isWanted);
    raise();
    if (hadFocus || (isWanted && m_place.hasFocus()))
        m_place.setFocus(); // with the page shown, its first button takes it
}

bool StartPage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_place && event->type() == QEvent::Resize)
        resize(m_place.size());
    if (watched == &m_place && event->type() == QEvent::FocusIn && !isHidden()) {
        if (auto* const first = findChild<QCommandLinkButton*>())
            first->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void StartPage::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down)
        focusNextPrevChild(event->key() == Qt::Key_Down);
    event->accept(); // the map below must not move
}
