#pragma once

#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <QElapsedTimer>
#include <QProgressDialog>

class IDesktopHost;

/// Shows how far reports are while they are written on this thread, and lets the user cancel them.
///
/// While it is shown it is modal to the whole program, so that the events that it takes in
/// `isCancelled` reach no other window: nothing that a report reads can change. Before it is shown
/// no events are taken.
class ReportProgress final : public IEventHandler
{
public:
    /// \param reports how many there will be
    ReportProgress(IDesktopHost& host, int reports);

    /// The next report begins.
    void begin(const QString& caption);
    /// Shows the progress and looks whether the user has cancelled, both at most 30 times a second.
    [[nodiscard]] bool isCancelled();

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    void takeEvents();

    QProgressDialog m_dialog;
    int m_reports;
    int m_current = 0; ///< counted from 1
    int m_percent = 0; ///< of the current one
    QElapsedTimer m_sinceShown;
    EventSubscription m_subscription;
};
