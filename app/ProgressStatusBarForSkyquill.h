#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QWidget>

#include <string>

class IDesktopHost;
class QLabel;
class QProgressBar;

/// Shows the progress of a long operation in the status bar; hidden while there is none.
///
/// The operation keeps the GUI thread busy, so the bar paints itself at once, but at most about 30
/// times a second. A payload that comes sooner waits unread until the next one replaces it or a
/// timer shows it: the last one is always shown.
class ProgressStatusBarForSkyquill final : public QWidget, public IWindowx, public IEventHandler
{
public:
    ProgressStatusBarForSkyquill(const char* config, IDesktopHost* host);

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    [[nodiscard]] bool canWait(const char* payload) const;
    void showPayload(const char* payload);
    void paintNow();

    basalt::Dictionary m_parameters;
    EventSubscription m_subscription;
    QProgressBar* m_bar;
    QLabel* m_label;

    basalt::Dictionary m_values; ///< of the payload being shown; a member to reuse its memory
    std::string m_waiting;       ///< the payload that came too soon
    bool m_isWaiting = false;
    QElapsedTimer m_sinceShown;
    QBasicTimer m_waitTimer;
};
