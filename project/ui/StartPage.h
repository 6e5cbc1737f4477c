#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QWidget>

class IDesktopHost;
class QCommandLinkButton;
class QVBoxLayout;

/// What the map's place offers while no project is open: a new project, opening one, the demo
/// survey, and the recent projects. It covers `place` and belongs to it.
class StartPage final : public QWidget, public IEventHandler
{
    Q_OBJECT

public:
    StartPage(IDesktopHost& host, QWidget& place);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QWidget* makeContent();
    void addCommand(const char* name, const QString& caption, const QString& description,
                    const char* icon);
    QCommandLinkButton* addButton(QVBoxLayout& column, const QString& caption,
                                  const QString& description, const char* icon);
    void listRecentProjects();
    void openRecent(const QString& file);
    void refresh();

    IDesktopHost& m_host; // outlives every window
    QWidget& m_place;
    QVBoxLayout* m_commands;
    QVBoxLayout* m_recent;
    QStringList m_listed; ///< the project files of the buttons in `m_recent`
    EventSubscription m_subscription;
};
