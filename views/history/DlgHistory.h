#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "project/ui/ClosesWithProject.h"
#include "views/history/HistoryActionModel.h"
#include "views/history/HistoryItemModel.h"

class CustomTableWidget;
class HistoryFilterBar;
class IDesktopHost;
class QAction;
class QLabel;
class QMenu;
class QPushButton;
class QVBoxLayout;

/// The history of the open project: its actions, and below them what the chosen one has changed.
/// With a point in the filter, all that has happened to the point. What is chosen below can be
/// restored.
///
/// A click on a change selects its point in the other windows, a double click shows it on the map.
/// There is one such window; it stays open beside the work and closes with its project.
class DlgHistory final : public Dialog, public IEventHandler
{
    Q_OBJECT

public:
    static DlgHistory& open(IDesktopHost& host);

    /// Shows what has happened to one point.
    void showPoint(const PointName& point);

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    using Rows = std::vector<HistoryActionModel::Row>;

    explicit DlgHistory(IDesktopHost& host);

    void addTables(QVBoxLayout& rows);
    void addButtons(QVBoxLayout& rows);
    void addActionMenu();
    void addItemMenu();

    /// Later, when whoever has changed the project is done.
    void refreshLater();
    void refresh();
    void addUnsaved(const HistoryFilter& filter, Rows& rows) const;
    /// \returns why it failed, or what the user has to know; mostly empty
    [[nodiscard]] static QString addSaved(const HistoryFilter& filter, Rows& rows);
    [[nodiscard]] QString noteOf(const QString& readNote) const;
    void tellNote(const QString& note);
    void chooseAction(int row);
    void showItems();
    [[nodiscard]] HistoryReader::Event eventOf(const HistoryActionModel::Row& row, QString& fault);
    void showState();

    void restore();
    [[nodiscard]] PointName presentName(int row) const;
    void selectPoint(int row);
    void zoomToPoint(int row);

    IDesktopHost& m_host; // outlives the window
    HistoryFilterBar* m_filters;
    HistoryActionModel* m_actions;
    HistoryItemModel* m_items;
    CustomTableWidget* m_actionTable;
    CustomTableWidget* m_itemTable;
    QLabel* m_note;
    QLabel* m_counts;
    QAction* m_restore;
    QPushButton* m_restoreButton;
    bool m_isLife = false; ///< of one point
    bool m_isFilling = false;
    bool m_isRefreshDue = false;
    ClosesWithProject m_closing;
    EventSubscription m_subscription;
};
