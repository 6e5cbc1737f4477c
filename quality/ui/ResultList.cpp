#include "quality/ui/ResultList.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "quality/ResultCsv.h"
#include "quality/ResultModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenu>
#include <QPointer>

namespace {

/// The captions of all columns, separated by tabs.
QString captionLine(const QAbstractItemModel& model)
{
    QStringList captions;
    for (int column = 0; column < model.columnCount(); ++column)
        captions << model.headerData(column, Qt::Horizontal).toString();
    return captions.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

QString lineOf(const QModelIndex& index)
{
    return index.siblingAtColumn(0).data(result_role::kLineNumber).toString();
}

QString pointOf(const QModelIndex& index)
{
    return index.siblingAtColumn(0).data(result_role::kPointNumber).toString();
}

} // namespace

ResultList::ResultList(IDesktopHost& host, std::unique_ptr<QAbstractTableModel> result,
                       const Setup& setup)
    : Dialog(host.dialogParent()), m_host(host), m_table(new CustomTableWidget(this)),
      m_points(setup.points), m_closing(*this, host.eventManager())
{
    setWindowTitle(setup.title);
    setMinimumSizeScaled(setup.smallest.width(), setup.smallest.height());
    setAttribute(Qt::WA_DeleteOnClose);
    result->setParent(m_table);
    m_table->setModel(result.release());
    connect(m_table, &QAbstractItemView::clicked, this, &ResultList::selectPoint);
    connect(m_table, &QAbstractItemView::doubleClicked, this, &ResultList::zoomToPoint);
    connect(m_table, &CustomTableWidget::reachedByKey, this, &ResultList::selectPoint);
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

void ResultList::selectPoint(const QModelIndex& index)
{
    const QString line = lineOf(index);
    const QString point = pointOf(index);
    const bool isDesign = m_points == Points::Design;
    if (auto* const list = m_host.windows().findAs<IPointList>(
            isDesign ? QStringLiteral("Design Data List") : QStringLiteral("Survey Data List")))
        list->selectPoint(line, point); // announces it
    else
        m_host.eventManager().publish(isDesign ? events::kDesignPointSelected
                                               : events::kSurveyPointSelected,
                                      payload::selectedPoint(point, line).constData(), 0);
}

void ResultList::zoomToPoint(const QModelIndex& index)
{
    const std::string line = lineOf(index).toStdString();
    const std::string number = pointOf(index).toStdString();
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    if (m_points == Points::Design) {
        if (const DesignPoint* const point = manager.designPoints().find(line, number))
            PointHighlight::zoomTo(m_host, *point);
    } else if (const SurveyPoint* const point = manager.surveyPoints().find(line, number)) {
        PointHighlight::zoomTo(m_host, *point);
    }
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
    Outcome outcome = checkNotOwn(ProjectState::place(), file);
    if (outcome.isDone())
        outcome = writeResultCsv(file, static_cast<const QAbstractTableModel&>(*m_table->model()),
                                 Qt::DisplayRole);
    QGuiApplication::restoreOverrideCursor();
    if (outcome.isDone())
        return;
    basalt::logError(outcome.detail());
    LumMessageBox::error(m_host.dialogParent(), tr("Save as CSV"), outcome.text());
}
