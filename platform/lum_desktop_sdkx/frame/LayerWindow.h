#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QListWidget>

class IDesktopHost;
class IMapWindow;

/// Lists the layers of the map "DataMap", the topmost first. A check mark shows or hides each
/// layer.
class LayerWindow final : public QListWidget, public IWindowx, public IEventHandler
{
    Q_OBJECT

public:
    LayerWindow(const char* config, IDesktopHost* host);

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    void rebuild();
    void applyCheck(QListWidgetItem* item);
    [[nodiscard]] IMapWindow* map() const;

    IDesktopHost& m_host; // outlives every window
    basalt::Dictionary m_parameters;
    EventSubscription m_subscription;
};
