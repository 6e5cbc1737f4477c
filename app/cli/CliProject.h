#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "lum_sdk/Host.h"
#include "project/DataProcessDataManager.h"
#include "project/ProjectPlace.h"

/// A project that a command works on. Progress goes to standard error when that is a terminal.
class CliProject final : public IEventHandler
{
public:
    CliProject();

    /// Prints notices on standard error.
    [[nodiscard]] Outcome open(const QString& file, ProjectAccess access);
    [[nodiscard]] Outcome save() { return m_manager.saveProject(m_place); }

    [[nodiscard]] DataProcessDataManager& manager() { return m_manager; }
    [[nodiscard]] IEventManager& events() { return m_host.eventManager(); }
    [[nodiscard]] const ProjectPlace& place() const { return m_place; }

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    Host m_host;
    DataProcessDataManager m_manager;
    EventSubscription m_subscription;
    ProjectPlace m_place;
    QString m_shown; ///< the progress line that stands on the terminal
};
