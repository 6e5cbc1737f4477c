#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"

#include <memory>
#include <string>

class CustomTableWidget;
class IDesktopHost;
class QAbstractTableModel;
class QModelIndex;

/// The result of a check, a row each: see quality/ResultModel.h. A click on a row, or going there
/// by key, selects its point in the list of points and shows it on the map. A menu copies rows and
/// saves them as CSV.
///
/// The rows are those of one run; the next run makes a new list. The list deletes itself when it is
/// closed, and closes when its project is closed.
class ResultList : public Dialog, public IEventHandler
{
    Q_OBJECT

public:
    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    struct Setup
    {
        QString title;
        QSize smallest;        ///< logical pixels
        const char* pointList; ///< the name of the window that lists the points
    };

    ResultList(IDesktopHost& host, std::unique_ptr<QAbstractTableModel> result, const Setup& setup);

    [[nodiscard]] CustomTableWidget& table() { return *m_table; }

    /// Shows a survey result on the map, unless it was deleted after the check. A list of design
    /// points overrides it.
    virtual void showOnMap(const QString& lineNumber, const QString& pointNumber);

    IDesktopHost& m_host; // outlives the dialog

private:
    void addMenu();
    void showPoint(const QModelIndex& index);
    void copyRows();
    void saveRows();

    CustomTableWidget* m_table;
    const char* m_pointList;
    std::string m_project; ///< the folder of the project that was checked
    EventSubscription m_subscription;
};
