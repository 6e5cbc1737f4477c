#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "project/IProblemList.h"
#include "views/problems/SelectedProblem.h"

#include <QWidget>

class CustomTableWidget;
class FilterHeader;
class IDesktopHost;
class ProblemActions;
class ProblemKindBar;
class ProblemTableModel;
class ProblemWidths;
class QBoxLayout;
class QLabel;
class QLineEdit;
class QModelIndex;
class QTimer;
class QToolButton;
class TableCountLine;

/// The window "Problems List": everything that is wrong with design and results, a row each, and
/// what can be done about it.
///
/// The list is that of one run over the project. It stays readable when the project changes, and
/// says then that it is old. Another project, or none, empties it.
class ProblemWindow final : public QWidget,
                            public IWindowx,
                            public IProblemList,
                            public IEventHandler
{
    Q_OBJECT

public:
    ProblemWindow(const char* config, IDesktopHost* host);
    ~ProblemWindow() override;

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }

    /// Runs everything that is on, and lists what it has found. What was chosen, filtered and
    /// selected stays.
    void find();
    /// Selects the next problem of the list, or the one before, and announces its point. Without a
    /// list it is made first.
    void step(bool isForward);

    bool followPoint(bool isDesign, const PointName& point) override;

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeLayout();
    void addBar(QBoxLayout& rows);
    void setKeyOrder();
    void connectParts();

    void forget();
    [[nodiscard]] bool isOld() const;
    void followAccepted();
    void showKinds();
    void showChoice();
    void choose();
    void hideChosenKind();
    void setFilter(int column, const QString& text);
    void clearFilters();
    void showState();
    void showSelected();
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] int acceptedCount() const;
    [[nodiscard]] QString faultText() const;
    [[nodiscard]] QString acceptanceText() const;
    void tellFound() const;
    void followLink(const QString& link);
    void showMenu(const QModelIndex& cell, const QPoint& place);

    IDesktopHost& m_host; // outlives the window
    basalt::Dictionary m_parameters;
    ProblemTableModel* m_model;
    CustomTableWidget* m_table;
    FilterHeader* m_header;
    ProblemKindBar* m_kinds;
    ProblemActions* m_actions;
    SelectedProblem m_selected;
    ProblemWidths* m_widths = nullptr;
    QToolButton* m_find;
    QLineEdit* m_search;
    QTimer* m_typing; ///< runs while the user types what he searches
    QLabel* m_old;    ///< says that the list is old
    QLabel* m_empty;  ///< over the rows that are not there
    TableCountLine* m_counts;
    QString m_project;           ///< the folder of the one that the list is of
    bool m_hasFound = false;     ///< there is a list
    basalt::Dictionary m_limits; ///< with which it was found
    EventSubscription m_subscription;
};
