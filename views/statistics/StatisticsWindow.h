#pragma once

#include "basalt_utilities/Dictionary.h"
#include "lum_desktop_sdkx/IWindow.h"
#include "lum_sdk/events/EventSubscription.h"
#include "lum_sdk/events/IEventManager.h"
#include "model/PointName.h"
#include "views/statistics/StatisticsData.h"

#include <QTimer>
#include <QWidget>

#include <cstdint>
#include <span>
#include <vector>

class CustomTableWidget;
class GroupNames;
class IDesktopHost;
class QBoxLayout;
class QComboBox;
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

    void handleEvent(const char* eventName, const char* payload, int reserved) override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    using Places = std::vector<std::uint32_t>;

    void makeLayout();
    void addBar(QBoxLayout& rows);
    QToolButton* addButton(QBoxLayout& bar, const char* name, const char* icon, const QString& text,
                           const QString& tip);
    void addKeys();
    void connectParts();

    void followProject();
    void renewSoon();
    void renew();
    void setKey(int place);
    void showGroups();
    void showState();
    void followPoint(const PointName& point);

    void chooseRows();
    void goFrom(const QModelIndex& cell);
    void showAll();
    void takeChoiceBack();
    void applyChoice();
    void showPlot();
    [[nodiscard]] std::vector<std::size_t> chosenGroups() const;
    [[nodiscard]] Places placesOf(std::span<const std::size_t> groups) const;
    [[nodiscard]] QString nameOf(std::span<const std::size_t> groups) const;
    [[nodiscard]] std::vector<PointName> designOf(std::span<const std::size_t> groups,
                                                  const Places& places) const;

    void selectInPlot(const Places& places);
    void showOnly(const QString& what, const Places& places, std::vector<PointName> design);
    [[nodiscard]] std::vector<PointName> namesOf(const Places& places, bool isOfStaked) const;
    void mark(const Places& places);
    void goTo(std::uint32_t place);
    void zoomTo(std::uint32_t place);

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
    QComboBox* m_keys;
    QToolButton* m_showAll = nullptr;
    QToolButton* m_save = nullptr;
    QWidget* m_areas = nullptr;
    QLabel* m_empty; ///< in place of table and plot
    std::vector<statistics::KeyValue> m_chosen;
    bool m_isSelection = false; ///< the tables show what was selected in the plot
    QString m_project;          ///< the folder of the one that is shown
    QTimer m_renewal;
    EventSubscription m_subscription;
};
