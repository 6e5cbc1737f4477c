#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QLabel>

class IDesktopHost;

/// Shows the position of the cursor in the status bar: the payload of "ON_XY_CHANGED_X", and the
/// unit of its coordinates. An empty payload clears it.
class CoordinateReadout final : public QLabel, public IWindowx, public IEventHandler
{
public:
    CoordinateReadout(const char* config, IDesktopHost* host);

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    basalt::Dictionary m_parameters;
    EventSubscription m_subscription;
};
