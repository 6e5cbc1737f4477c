#include "project/ui/ClosesWithProject.h"

#include "lum_sdk/events/PlatformEvents.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"

#include <QWidget>

namespace {

QString openProject()
{
    return ProjectState::isOpen() ? ProjectState::place().folder : QString();
}

} // namespace

ClosesWithProject::ClosesWithProject(QWidget& window, IEventManager& events)
    : m_window(window), m_project(openProject()),
      m_subscription(*this, events::kUpdateSystemStatus, events)
{
}

void ClosesWithProject::handleEvent(const char* /*eventName*/, const char* /*payload*/,
                                    int /*reserved*/)
{
    if (openProject() != m_project)
        m_window.close();
}
