#include "quality/ui/ResultList.h"

#include "basalt_utilities/ILogger.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/controls/FaultColors.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/ICommandList.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/Text.h"
#include "map/ui/PointHighlight.h"
#include "project/DataProcessDataManager.h"
#include "project/IPointList.h"
#include "project/OwnFile.h"
#include "project/ProjectPlace.h"
#include "project/ui/ProjectState.h"
#include "protocol/Events.h"
#include "protocol/Payloads.h"
#include "quality/CheckKinds.h"
#include "quality/ResultCsv.h"
#include "quality/ResultModel.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QIdentityProxyModel>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QScrollBar>
#include <QShortcut>
#include <QVBoxLayout>

#include <algorithm>

namespace {

/// The rows of a result, with the colour of faults.
class ColouredRows final : public QIdentityProxyModel
{
public:
    using QIdentityProxyModel::QIdentityProxyModel;

    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
    {
        if (role != Qt::BackgroundRole)
            return QIdentityProxyModel::data(index, role);
        return QIdentityProxyModel::data(index, result_role::kIsFault).toBool() ? faultBackground()
                                                                                : QVariant();
    }
};

/// The captions of all columns, separated by tabs.
QString captionLine(const QAbstractItemModel& model)
{
    QStringList captions;
    for (int column = 0; column < model.columnCount(); ++column)
        captions << model.headerData(column, Qt::Horizontal).toString();
    return captions.join(QLatin1Char('\t')) + QLatin1Char('\n');
}

} // namespace

ResultList::ResultList(IDesktopHost& host, const CheckKind& kind, CheckResult result,
                       const Setup& setup)
    : Dialog(host.dialogParent()), m_host(host), m_kind(kind), m_table(new CustomTableWidget(this)),
      m_finding(new QLabel(this)), m_menu(new QMenu(this)), m_layout(makeMainLayout()),
      m_points(setup.points), m_closing(*this, host.eventManager())
{
    setWindowTitle(setup.title);
    setMinimumSizeScaled(setup.smallest.width(), setup.smallest.height());
    setAttribute(Qt::WA_DeleteOnClose);
    m_table->setModel(new ColouredRows(m_table));
    m_finding->setTextFormat(Qt::PlainText);
    m_finding->setWordWrap(true);
    showRows(std::move(result));
    connect(m_table, &QAbstractItemView::clicked, this, &ResultList::selectPoint);
    connect(m_table, &QAbstractItemView::doubleClicked, this, &ResultList::zoomToPoint);
    connect(m_table, &CustomTableWidget::reachedByKey, this, &ResultList::selectPoint);
    addMenu();
    m_layout->addWidget(m_table);
    m_layout->addWidget(m_finding);
    fitWidth();
    addUndoKeys();
    moveIntoCorner(); // a clicked point appears in the middle of the map
}

void ResultList::fitWidth()
{
    QHeaderView& header = *m_table->horizontalHeader();
    const QMargins margins = layout()->contentsMargins();
    const int needed = header.length() + m_table->verticalScrollBar()->sizeHint().width() +
                       2 * m_table->frameWidth() + margins.left() + margins.right();
    resize(std::max(minimumWidth(), needed), minimumHeight());
    const int more = std::max(0, minimumWidth() - needed) / header.count();
    for (int column = 0; column < header.count(); ++column)
        header.resizeSection(column, header.sectionSize(column) + more);
    header.setStretchLastSection(true); // what is left over
}

void ResultList::addMenu()
{
    addAction(m_menu->addAction(tr("&Copy"), this, &ResultList::copyRows, QKeySequence::Copy));
    m_menu->addAction(tr("&Save as CSV..."), this, &ResultList::saveRows);
    connect(m_table, &CustomTableWidget::contextMenuRequestedAt, m_menu,
            [this](const QModelIndex& /*index*/, const QPoint& place) { m_menu->popup(place); });
}

void ResultList::addUndoKeys()
{
    const auto add = [this](QKeySequence::StandardKey key, const QString& command) {
        connect(new QShortcut(key, this), &QShortcut::activated, this,
                [this, command] { m_host.commands().execute(command); });
    };
    add(QKeySequence::Undo, QStringLiteral("Undo"));
    add(QKeySequence::Redo, QStringLiteral("Redo"));
}

void ResultList::showRows(CheckResult result)
{
    static_cast<ColouredRows*>(m_table->model())->setSourceModel(result.rows.get());
    m_rows = std::move(result.rows);
    const QString note = unitNoteOf(m_kind);
    m_finding->setText(note.isEmpty() ? result.finding : result.finding + QLatin1Char('\n') + note);
}

void ResultList::setResult(CheckResult result)
{
    const int place = m_table->verticalScrollBar()->value();
    const std::vector<int> selected = m_table->selectedRows();
    const int row = selected.empty() ? m_table->currentIndex().row() : selected.front();
    showRows(std::move(result));
    m_table->verticalScrollBar()->setValue(place);
    const QModelIndex next = m_table->model()->index(std::min(row, m_rows->rowCount() - 1), 0);
    m_table->selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
}

PointName ResultList::nameOf(const QModelIndex& index)
{
    const QModelIndex first = index.siblingAtColumn(0);
    return {first.data(result_role::kLineNumber).toString().toStdString(),
            first.data(result_role::kPointNumber).toString().toStdString()};
}

void ResultList::selectPoint(const QModelIndex& index)
{
    const PointName name = nameOf(index);
    const QString line = lum::toQString(name.line);
    const QString point = lum::toQString(name.point);
    const bool isDesign = m_points == Points::Design;
    if (auto* const list = m_host.windows().findAs<IPointList>(
            isDesign ? QStringLiteral("Design Data List") : QStringLiteral("Survey Data List"))) {
        if (!list->selectPoint(line, point)) // which announces it
            m_host.tell(tr("Point %1 of line %2 is not in the project any more.").arg(point, line));
    } else
        m_host.eventManager().publish(isDesign ? events::kDesignPointSelected
                                               : events::kSurveyPointSelected,
                                      payload::selectedPoint(point, line).constData(), 0);
}

void ResultList::zoomToPoint(const QModelIndex& index)
{
    const PointName name = nameOf(index);
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    if (m_points == Points::Design) {
        if (const DesignPoint* const point = manager.designPoints().find(name.line, name.point))
            PointHighlight::zoomTo(m_host, *point);
    } else if (const SurveyPoint* const point =
                   manager.surveyPoints().find(name.line, name.point)) {
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
        outcome = writeResultCsv(file, *m_rows, ResultCsv::AsShown);
    QGuiApplication::restoreOverrideCursor();
    if (outcome.isDone())
        return;
    basalt::logError(outcome.detail());
    LumMessageBox::error(m_host.dialogParent(), tr("Save as CSV"), outcome.text());
}
