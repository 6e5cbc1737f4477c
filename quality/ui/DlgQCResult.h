#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "quality/QualityDescription.h"

class CustomTableWidget;
class IDesktopHost;
class QModelIndex;

/// The faults that a quality check found, a row each; a click shows the result in the survey table
/// and on the map. A snapshot: a later check makes a new one. It ends when it is closed, and closes
/// itself with its project.
class DlgQCResult final : public Dialog, public IEventHandler
{
    Q_OBJECT

public:
    DlgQCResult(IDesktopHost& host, std::vector<QualityRow> rows);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    void leaveTheMapInView();
    void onItemClicked(const QModelIndex& index);
    void showOnMap(const QString& lineNumber, const QString& pointNumber);

    IDesktopHost& m_host; // outlives the dialog
    CustomTableWidget* m_table;
    std::string m_project; ///< the folder of the project that was checked
    EventSubscription m_subscription;
};
