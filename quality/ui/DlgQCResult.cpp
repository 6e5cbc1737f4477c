#include "quality/ui/DlgQCResult.h"

#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/ICoordTransformHelper.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/ISurveyPointList.h"
#include "protocol/Events.h"
#include "protocol/StatusKeys.h"
#include "quality/ui/QualityResultModel.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QPointF>

#include <algorithm>

namespace {

constexpr int kMargin = 10;
constexpr int kStep = 36; // from one list to the next: a title bar and its frame

std::string openProject()
{
    const IDictionary& values = get_system_status_dictionary();
    return values.integer(status::kProjectOpen) != 0
               ? std::string(values.text(status::kProjectPath))
               : std::string();
}

} // namespace

DlgQCResult::DlgQCResult(IDesktopHost& host, std::vector<QualityRow> rows)
    : Dialog(host.dialogParent()), m_host(host), m_table(new CustomTableWidget(this)),
      m_project(openProject()),
      m_subscription(*this, events::kUpdateSystemStatus, host.eventManager())
{
    setWindowTitle(tr("Quality Check Result"));
    setMinimumSizeScaled(750, 450);
    setAttribute(Qt::WA_DeleteOnClose);
    m_table->setModel(new QualityResultModel(std::move(rows), m_table));
    m_table->setAlternatingRowColors(true);
    m_table->horizontalHeader()->setSectionResizeMode(QualityResultModel::Describe,
                                                      QHeaderView::ResizeToContents);
    connect(m_table, &QAbstractItemView::clicked, this, &DlgQCResult::onItemClicked);
    makeMainLayout()->addWidget(m_table);
    resize(minimumSize());
    leaveTheMapInView();
}

void DlgQCResult::leaveTheMapInView()
{
    const QWidget* const frame = parentWidget();
    if (frame == nullptr)
        return;
    // Into the lower right corner: what is clicked appears in the middle of the map.
    const QPoint corner = frame->mapToGlobal(frame->rect().bottomRight());
    QPoint place = corner - rect().bottomRight() - QPoint(kMargin, kMargin);
    const QPoint step(dpi_scaled(kStep), dpi_scaled(kStep));
    const auto others = frame->findChildren<DlgQCResult*>();
    const auto isTaken = [&] {
        return std::any_of(others.begin(), others.end(), [&](const DlgQCResult* other) {
            return other->isVisible() &&
                   (other->pos() - place).manhattanLength() < step.manhattanLength();
        });
    };
    while (isTaken()) // each step leaves the last place, so one is free in the end
        place -= step;
    move(place);
}

void DlgQCResult::handleEvent(const char* /*eventName*/, const char* /*payload*/, int /*reserved*/)
{
    if (openProject() != m_project)
        close();
}

void DlgQCResult::onItemClicked(const QModelIndex& index)
{
    const QModelIndex first = index.siblingAtColumn(QualityResultModel::PointNumber);
    const QString point = first.data(QualityResultModel::kPointRole).toString();
    const QString line = first.data(QualityResultModel::kLineRole).toString();
    const QString listName = QStringLiteral("Survey Data List");
    if (auto* const list = m_host.windows().findAs<ISurveyPointList>(listName))
        list->selectPoint(line, point);
    showOnMap(line, point);
}

void DlgQCResult::showOnMap(const QString& lineNumber, const QString& pointNumber)
{
    const SurveyPoint* const point = DataProcessDataManager::instance().surveyPoints().find(
        lineNumber.toStdString(), pointNumber.toStdString());
    if (point == nullptr) // deleted since
        return;
    const ICoordTransformHelper& helper = m_host.coordTransformHelper();
    const QPointF measured = helper.projectToMap(point->north, point->east);
    const bool hasDesign = point->designNorth != 0 && point->designEast != 0;
    PointHighlight::show(m_host, measured,
                         hasDesign ? helper.projectToMap(point->designNorth, point->designEast)
                                   : measured);
}
