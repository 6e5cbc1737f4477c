#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QString>

class QWidget;

/// Closes a window when the project that was open at first is open no more. A member of the window.
class ClosesWithProject final : public IEventHandler
{
public:
    ClosesWithProject(QWidget& window, IEventManager& events);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    QWidget& m_window;
    QString m_project; ///< its folder
    EventSubscription m_subscription;
};
