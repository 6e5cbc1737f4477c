#include "views/statistics/StatisticsPlots.h"

#include "basalt_utilities/ILogger.h"
#include "exchange/ui/FileExports.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/WaitCursor.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "plots/PlotKinds.h"
#include "plots/StatisticsPlot.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/StatusKeys.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

constexpr int kMargin = 4;
constexpr int kLeastKind = 10; // characters

int chosenKind()
{
    const auto kinds = plotKinds();
    const auto name = get_system_ini_parameter().dictionary().text(settings::kStatisticsPlot);
    const auto found =
        std::ranges::find_if(kinds, [&](const PlotKind& kind) { return name == kind.name; });
    return found == kinds.end() ? 0 : static_cast<int>(found - kinds.begin());
}

} // namespace

StatisticsPlots::StatisticsPlots(IDesktopHost& host, QWidget* parent)
    : QWidget(parent), m_host(host), m_kinds(new QComboBox(this)), m_rows(new QVBoxLayout(this))
{
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(0);
    auto* const bar = new QHBoxLayout;
    const int margin = dpi_scaled(kMargin);
    bar->setContentsMargins(margin, margin, margin, margin);
    bar->setSpacing(margin);
    m_kinds->setObjectName(QStringLiteral("plotKinds"));
    m_kinds->setAccessibleName(tr("Kind of plot"));
    m_kinds->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_kinds->setMinimumContentsLength(kLeastKind);
    for (const PlotKind& kind : plotKinds())
        m_kinds->addItem(kind.captionText());
    m_kinds->setCurrentIndex(chosenKind());
    bar->addWidget(m_kinds, 1);
    addTools(*bar);
    m_rows->addLayout(bar);
    makePlot();
    connect(m_kinds, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &StatisticsPlots::choose);
}

QToolButton* StatisticsPlots::addTool(QHBoxLayout& bar, const char* name, const char* icon,
                                      const QString& tip)
{
    auto* const button = new QToolButton(this);
    button->setObjectName(QLatin1String(name));
    button->setIcon(QIcon::fromTheme(QLatin1String(icon)));
    button->setToolTip(tip);
    button->setAccessibleName(tip);
    button->setAutoRaise(true);
    bar.addWidget(button);
    return button;
}

void StatisticsPlots::addTools(QHBoxLayout& bar)
{
    QToolButton* const select =
        addTool(bar, "plotSelect", "select-rectangular",
                tr("Select: a click or a drag shows these results in the tables and on the map"));
    m_zoom = addTool(bar, "plotZoom", "map_zoom_rectangle",
                     tr("Zoom: a drag shows this part. The wheel zooms, the middle button moves"));
    auto* const modes = new QButtonGroup(this);
    for (QToolButton* const mode : {select, m_zoom}) {
        mode->setCheckable(true);
        modes->addButton(mode);
    }
    select->setChecked(true);
    connect(m_zoom, &QToolButton::toggled, this, [this](bool isZoom) {
        m_plot->setMouse(isZoom ? StatisticsPlot::Mouse::Zoom : StatisticsPlot::Mouse::Select);
    });
    connect(addTool(bar, "plotAll", "map_zoom_all", tr("Show everything in the plot")),
            &QToolButton::clicked, this, [this] { m_plot->showAll(); });
    m_save = addTool(bar, "plotSave", "document-save",
                     tr("Save the plot as a picture (PNG, SVG) or PDF"));
    connect(m_save, &QToolButton::clicked, this, &StatisticsPlots::save);
    m_copy = addTool(bar, "plotCopy", "edit-copy", tr("Copy the plot as a picture"));
    connect(m_copy, &QToolButton::clicked, this, &StatisticsPlots::copy);
}

void StatisticsPlots::choose(int kind)
{
    SystemParameter& settings = get_system_ini_parameter();
    settings.dictionary().set(settings::kStatisticsPlot,
                              plotKinds()[static_cast<std::size_t>(kind)].name);
    settings.save(); // logs a failure; the choice is then kept for this session only
    makePlot();
}

/// Only the plot that is seen is there.
void StatisticsPlots::makePlot()
{
    delete m_plot;
    const PlotKind& kind = plotKinds()[static_cast<std::size_t>(m_kinds->currentIndex())];
    m_plot = kind.make(this).release();
    m_rows->addWidget(m_plot, 1);
    m_plot->setMouse(m_zoom->isChecked() ? StatisticsPlot::Mouse::Zoom
                                         : StatisticsPlot::Mouse::Select);
    m_plot->setData(m_data);
    m_plot->setSelected(m_selected);
    showState();
    connect(m_plot, &StatisticsPlot::selected, this,
            [this](const std::vector<std::uint32_t>& places) {
                m_selected = places;
                Q_EMIT selected(places);
            });
    connect(m_plot, &StatisticsPlot::activated, this, &StatisticsPlots::activated);
}

void StatisticsPlots::setData(PlotData shown)
{
    m_data = std::move(shown);
    m_selected.clear();
    m_plot->setData(m_data);
    showState();
}

void StatisticsPlots::showState()
{
    for (QToolButton* const button : {m_save, m_copy})
        button->setEnabled(!m_plot->isEmpty());
}

void StatisticsPlots::setSelected(std::vector<std::uint32_t> places)
{
    m_selected = std::move(places);
    m_plot->setSelected(m_selected);
}

void StatisticsPlots::save()
{
    const QString title = tr("Save Plot");
    const QString file = FileDialog::getSaveFileName(
        m_host.dialogParent(), title, tr("Picture(*.png);;Drawing(*.svg);;PDF file(*.pdf)"));
    if (file.isEmpty() || !ProjectState::hasData())
        return;
    Outcome outcome = checkNotOwn(ProjectState::place(), file);
    if (outcome.isDone()) {
        const WaitCursor waiting;
        outcome = m_plot->save(file);
    }
    if (outcome.isDone())
        return FileExports::offerToOpen(m_host, file);
    basalt::logError(outcome.detail());
    LumMessageBox::error(m_host.dialogParent(), title, outcome.text());
}

void StatisticsPlots::copy()
{
    m_plot->copy();
    m_host.tell(tr("The plot is on the clipboard."));
}
