#include "quality/ui/ResultList.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "quality/ResultCsv.h"
#include "quality/ResultModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QPointer>
#include <QPointF>

namespace {

/// The folder of the open project; empty without one.
std::string openProject()
{
    const IDictionary& values = get_system_status_dictionary();
    return values.integer(status::kProjectOpen) != 0
               ? std::string(values.text(status::kProjectPath))
               : std::string();
}

/// The captions of all columns, separated by tabs.
QString captionLine(const QAbstractItemModel& model)
{
    QStringList captions;
    for (int column = 0; column < model.columnCount(); ++column)
        captions << model.headerData(column, Qt::Horizontal).toString();
    return captions.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

} // namespace

ResultList::ResultList(IDesktopHost& host, std::unique_ptr<QAbstractTableModel> result,
                       const Setup& setup)
    : Dialog(host.dialogParent()), m_host(host), m_table(new CustomTableWidget(this)),
      m_pointList(setup.pointList), m_project(openProject()),
      m_subscription(*this, events::kUpdateSystemStatus, host.eventManager())
{
    setWindowTitle(setup.title);
    setMinimumSizeScaled(setup.smallest.width(), setup.smallest.height());
    setAttribute(Qt::WA_DeleteOnClose);
    result->setParent(m_table);
    m_table->setModel(result.release());
    connect(m_table, &QAbstractItemView::clicked, this, &ResultList::showPoint);
    connect(m_table, &CustomTableWidget::reachedByKey, this, &ResultList::showPoint);
    addMenu();
    makeMainLayout()->addWidget(m_table);
    resize(minimumSize());
    moveIntoCorner(); // a clicked point appears in the middle of the map
}

void ResultList::addMenu()
{
    auto* const menu = new QMenu(this);
    addAction(menu->addAction(tr("&Copy"), this, &ResultList::copyRows, QKeySequence::Copy));
    menu->addAction(tr("&Save as CSV..."), this, &ResultList::saveRows);
    connect(m_table, &CustomTableWidget::contextMenuRequestedAt, menu,
            [menu](const QModelIndex& /*index*/, const QPoint& place) { menu->popup(place); });
}

void ResultList::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    if (openProject() != m_project)
        close();
}

void ResultList::showPoint(const QModelIndex& index)
{
    const QModelIndex first = index.siblingAtColumn(0);
    const QString point = first.data(result_role::kPointNumber).toString();
    const QString line = first.data(result_role::kLineNumber).toString();
    if (auto* const list = m_host.windows().findAs<IPointList>(QLatin1String(m_pointList)))
        list->selectPoint(line, point);
    showOnMap(line, point);
}

void ResultList::showOnMap(const QString& lineNumber, const QString& pointNumber)
{
    const SurveyPoint* const point = DataProcessDataManager::instance().surveyPoints().find(
        lineNumber.toStdString(), pointNumber.toStdString());
    if (point == nullptr)
        return;
    const ICoordTransformHelper& helper = m_host.coordTransformHelper();
    const QPointF measured = helper.projectToMap(point->north, point->east);
    const bool hasDesign = point->designNorth != 0 && point->designEast != 0;
    PointHighlight::show(m_host, measured,
                         hasDesign ? helper.projectToMap(point->designNorth, point->designEast)
                                   : measured);
}

void ResultList::copyRows()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const QString rows = m_table->selectedRowsText();
    if (!rows.isEmpty())
        QGuiApplication::clipboard()->setText(captionLine(*m_table->model()) + rows);
    QGuiApplication::restoreOverrideCursor();
}

void ResultList::saveRows()
{
    const QPointer<ResultList> self = this; // its project may be closed while the user is asked
    const QString file = FileDialog::getSaveFileName(m_host.dialogParent(), tr("Save as CSV"),
                                                     QStringLiteral("csv file(*.csv)"));
    if (self == nullptr || file.isEmpty())
        return;
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const Outcome outcome = writeResultCsv(
        file, static_cast<const QAbstractTableModel&>(*m_table->model()), Qt::DisplayRole);
    QGuiApplication::restoreOverrideCursor();
    if (outcome.isDone())
        return;
    basalt::logError(outcome.detail());
    LumMessageBox::error(m_host.dialogParent(), tr("Save as CSV"), outcome.text());
}
