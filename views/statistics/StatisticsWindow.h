#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "model/PointName.h"
#include "views/statistics/ChosenGroups.h"
#include "views/statistics/StatisticsData.h"
#include "views/statistics/StatisticsLinks.h"

#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <vector>

class CustomTableWidget;
class GroupKeyBox;
class GroupNames;
class IDesktopHost;
class QBoxLayout;
class QLabel;
class QModelIndex;
class QToolButton;
class StatisticsPlots;
class StatisticsTableModel;
class StatisticsWidths;

/// The window "Statistics": the figures of groups of results, a row each, and beside them a plot of
/// the chosen groups. What is chosen here, in table or plot, is shown alone in the tables of the
/// points and marked on the map, until all is shown again.
///
/// The figures are those of now: they are computed when they are seen, and anew after a change.
class StatisticsWindow final : public QWidget, public IWindowx, public IEventHandler
{
    Q_OBJECT

public:
    StatisticsWindow(const char* config, IDesktopHost* host);
    ~StatisticsWindow() override;

    [[nodiscard]] QWidget* widget() override { return this; }
    [[nodiscard]] IDictionary& parameters() override { return m_parameters; }
    /// The tables show all points again.
    void onClosed() override { showAll(); }

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void makeLayout();
    void addBar(QBoxLayout& rows);
    QToolButton* addButton(QBoxLayout& bar, const char* name, const char* icon, const QString& text,
                           const QString& tip);
    void connectParts();

    void followProject();
    void renewSoon();
    void renew();
    void followKey();
    void showGroups();
    void showState();
    void followPoint(const PointName& point);

    void chooseRows();
    void goFrom(const QModelIndex& cell);
    void selectInPlot(const std::vector<std::uint32_t>& places);
    void showAll();
    void takeChoiceBack();
    [[nodiscard]] StatisticsLinks::Shown choice() const;
    void showPlot();

    void showMenu(const QPoint& at);
    void copy();
    void save();

    IDesktopHost& m_host; // outlives the window
    basalt::Dictionary m_parameters;
    StatisticsData m_data;
    StatisticsTableModel* m_model;
    CustomTableWidget* m_table;
    GroupNames* m_names = nullptr; ///< over its first column
    StatisticsPlots* m_plots;
    StatisticsWidths* m_widths = nullptr;
    GroupKeyBox* m_keys;
    QLabel* m_only; ///< what the tables show alone
    QToolButton* m_showAll = nullptr;
    QToolButton* m_save = nullptr;
    QWidget* m_areas = nullptr;
    QLabel* m_empty; ///< in place of table and plot
    ChosenGroups m_chosen;
    StatisticsLinks m_links;
    bool m_isSelection = false; ///< the tables show what was selected in the plot
    QString m_project;          ///< the folder of the one that is shown
    QTimer m_renewal;
    EventSubscription m_subscription;
};
