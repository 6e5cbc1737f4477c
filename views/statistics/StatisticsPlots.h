#pragma once

#include "plots/PlotData.h"

#include <QWidget>

#include <cstdint>
#include <vector>

class IDesktopHost;
class QComboBox;
class QHBoxLayout;
class QToolButton;
class QVBoxLayout;
class StatisticsPlot;

/// One plot of the user's choice, with its tools.
class StatisticsPlots final : public QWidget
{
    Q_OBJECT

public:
    explicit StatisticsPlots(IDesktopHost& host, QWidget* parent = nullptr);

    void setData(PlotData shown);
    /// Marks results. Announces nothing.
    /// \param places in the sample
    void setSelected(std::vector<std::uint32_t> places);

Q_SIGNALS:
    /// The user has selected results in the plot; none by a click beside them.
    void selected(const std::vector<std::uint32_t>& places);
    /// The user has double clicked a result.
    void activated(std::uint32_t place);

private:
    void addTools(QHBoxLayout& bar);
    void showState();
    QToolButton* addTool(QHBoxLayout& bar, const char* name, const char* icon, const QString& tip);
    void choose(int kind);
    void makePlot();
    void save();
    void copy();

    IDesktopHost& m_host; // outlives this
    QComboBox* m_kinds;
    QToolButton* m_save = nullptr;
    QToolButton* m_copy = nullptr;
    QToolButton* m_zoom = nullptr; ///< down: a drag zooms, else it selects
    QVBoxLayout* m_rows;
    StatisticsPlot* m_plot = nullptr;
    PlotData m_data;
    std::vector<std::uint32_t> m_selected;
};
