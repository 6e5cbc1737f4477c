#pragma once

#include "lum_desktop_sdkx/dialogs/Dialog.h"
#include "project/ui/ClosesWithProject.h"
#include "views/history/HistoryActionModel.h"
#include "views/history/HistoryItemModel.h"

#include <QPointer>

#include <optional>

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
    /// \param point  to show what has happened to it alone
    static void open(IDesktopHost& host, const std::optional<PointName>& point = {});

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

private:
    DlgHistory(IDesktopHost& host, const std::optional<PointName>& point);

    void addTables(QVBoxLayout& rows);
    void connectTables();
    void addButtons(QVBoxLayout& rows);
    void showActionMenu(const QModelIndex& cell, const QPoint& place);
    void showItemMenu(const QModelIndex& cell, const QPoint& place);
    void popUp(QMenu& menu, const QPoint& place);
    void showPoint(const PointName& point);

    /// Later, when whoever has changed the project is done.
    void refreshLater();
    void refresh();
    void refreshHeld();
    /// Whether a menu is open or a reason is being typed, which a refresh would spoil.
    [[nodiscard]] bool isInUse() const;
    void readActions();
    [[nodiscard]] QString note() const;
    void tellNote(const QString& note);
    void chooseAction(int row);
    void showItems();
    void hideColumns();
    void showState();

    [[nodiscard]] std::vector<HistoryItem> allItems(int change, QString& fault) const;
    void restore();

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
    QPointer<QMenu> m_menu;                ///< the one that is open
    QString m_readNote;                    ///< about the saved actions
    bool m_isSavedShown = false;           ///< else they are read at the next refresh
    std::optional<std::int64_t> m_itemsOf; ///< the saved action whose changes are shown
    bool m_isLife = false;                 ///< of one point
    bool m_isFilling = false;
    bool m_isRefreshDue = false;
    bool m_isRefreshHeld = false; ///< until the window is not in use
    ClosesWithProject m_closing;
    EventSubscription m_subscription;
};
