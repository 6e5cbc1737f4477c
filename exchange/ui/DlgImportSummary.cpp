#include "exchange/ui/DlgImportSummary.h"

#include "exchange/ImportFindingsModel.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_desktop_sdkx/dialogs/LumMessageBox.h"
#include "lum_desktop_sdkx/IDesktopHost.h"
#include "lum_desktop_sdkx/IWindowRegistry.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/GroupedNumber.h"
#include "project/IPointList.h"

#include <QClipboard>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int kWidth = 760;
constexpr int kHeight = 460;
constexpr int kHeightAlone = 240; ///< without a table
constexpr int kColumnGap = 12;
constexpr int kMostNumbers = 160; ///< height of the numbers, before they scroll

/// Whether the user has something to look at, beside points that were replaced as wished.
bool isClean(const ImportSummary& summary)
{
    const auto kinds = summary.kinds();
    return summary.hasPoints() && summary.remarks.isEmpty() &&
           std::all_of(kinds.begin(), kinds.end(), [&](const ImportSummary::Kind& kind) {
               return &kind.findings == &summary.replaced;
           });
}

QLabel* iconLabel(const ImportSummary& summary, QWidget* parent)
{
    auto* const label = new QLabel(parent);
    const QStyle& style = *parent->style();
    const int size = style.pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, parent);
    label->setPixmap(style
                         .standardIcon(isClean(summary) ? QStyle::SP_MessageBoxInformation
                                                        : QStyle::SP_MessageBoxWarning,
                                       nullptr, parent)
                         .pixmap(size, size));
    return label;
}

/// A text that can be selected, looks as a label, and scrolls when it is long.
QPlainTextEdit* textView(const QString& text, QWidget* parent)
{
    auto* const view = new QPlainTextEdit(text, parent);
    view->setReadOnly(true);
    view->setFrameShape(QFrame::NoFrame);
    view->setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere); // a path may have no blank
    view->setTabChangesFocus(true);
    QPalette colours = view->palette();
    colours.setColor(QPalette::Base, colours.color(QPalette::Window));
    view->setPalette(colours);
    return view;
}

/// Captions and cells, separated by tabs.
QString tableText(const QAbstractItemModel& model)
{
    QString text;
    for (int row = -1; row < model.rowCount(); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(); ++column)
            cells << (row < 0 ? model.headerData(column, Qt::Horizontal)
                              : model.index(row, column).data())
                         .toString();
        text += cells.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

} // namespace

DlgImportSummary::DlgImportSummary(IDesktopHost& host, const ImportSummary& summary,
                                   const char* pointList)
    : Dialog(host.dialogParent()), m_host(host), m_path(summary.path),
      m_isDatabase(summary.isDatabase), m_pointList(pointList),
      m_closing(*this, host.eventManager())
{
    setObjectName(QStringLiteral("DlgImportSummary"));
    setWindowTitle(tr("Success"));
    setAttribute(Qt::WA_DeleteOnClose);
    auto* const rows = makeMainLayout();
    addNumbers(summary, *rows);
    if (!summary.kinds().empty())
        addFindings(summary, *rows);
    addButtons(*rows);
    resize(dpi_scaled(kWidth), dpi_scaled(m_table == nullptr ? kHeightAlone : kHeight));
    moveIntoCorner();
}

void DlgImportSummary::addNumbers(const ImportSummary& summary, QVBoxLayout& rows)
{
    m_numbers = textView(
        (QStringList(tr("Import Success!")) + summary.numbers()).join(QLatin1Char('\n')), this);
    auto* const row = new QHBoxLayout;
    row->addWidget(iconLabel(summary, this), 0, Qt::AlignTop);
    row->addWidget(m_numbers);
    rows.addLayout(row);
}

void DlgImportSummary::addFindings(const ImportSummary& summary, QVBoxLayout& rows)
{
    m_table = new CustomTableWidget(this);
    m_table->setModel(new ImportFindingsModel(summary, m_table));
    QHeaderView& header = *m_table->horizontalHeader();
    header.setStretchLastSection(true);
    for (int column = 0; column < header.count() - 1; ++column) // a caption in Chinese is wider
        header.resizeSection(column, header.sectionSize(column) + dpi_scaled(kColumnGap));
    connect(m_table, &QAbstractItemView::clicked, this, &DlgImportSummary::showFinding);
    connect(m_table, &CustomTableWidget::reachedByKey, this, &DlgImportSummary::showFinding);
    auto* const menu = new QMenu(this);
    menu->addAction(
        tr("&Copy"), m_table, [this] { m_table->copySelection(); }, QKeySequence::Copy);
    menu->addAction(tr("Copy &All"), this, &DlgImportSummary::copyAll);
    connect(m_table, &CustomTableWidget::contextMenuRequestedAt, menu,
            [menu](const QModelIndex& /*index*/, const QPoint& place) { menu->popup(place); });
    rows.addWidget(m_table, 1);

    const auto kinds = summary.kinds();
    const bool isCut = std::any_of(kinds.begin(), kinds.end(), [](const ImportSummary::Kind& kind) {
        return kind.findings.count > kind.findings.first.size();
    });
    m_place = new QLabel(this);
    m_place->setObjectName(QStringLiteral("place"));
    m_place->setTextFormat(Qt::PlainText);
    m_place->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_place->setWordWrap(true);
    m_place->setMinimumHeight(2 * m_place->fontMetrics().lineSpacing());
    m_place->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_place->setText((isCut
                          ? tr("Of each kind the first %1 are listed.")
                                    .arg(lum::groupedNumber(ImportSummary::Findings::kMostPlaces)) +
                                QLatin1Char(' ')
                          : QString()) +
                     tr("Click a row to see its point, or where it stands in the file."));
    rows.addWidget(m_place);
}

void DlgImportSummary::addButtons(QVBoxLayout& rows)
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    const auto add = [&](const QString& text, void (DlgImportSummary::*action)()) {
        auto* const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, action);
    };
    add(tr("Copy &All"), &DlgImportSummary::copyAll);
    if (!m_isDatabase)
        add(tr("&Open the File"), &DlgImportSummary::openFile);
    buttons->button(QDialogButtonBox::Close)->setDefault(true);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    rows.addWidget(buttons);
}

void DlgImportSummary::showEvent(QShowEvent* event)
{
    Dialog::showEvent(event);
    if (m_table == nullptr)
        return; // the numbers have all the room
    layout()->activate();
    QTextCursor end(m_numbers->document());
    end.movePosition(QTextCursor::End);
    const int margin = int(m_numbers->document()->documentMargin());
    m_numbers->setFixedHeight(
        std::min(m_numbers->cursorRect(end).bottom() + 2 * margin, dpi_scaled(kMostNumbers)));
}

void DlgImportSummary::showFinding(const QModelIndex& index)
{
    const QModelIndex first = index.siblingAtColumn(0);
    const QString point = first.data(ImportFindingsModel::kPointNumber).toString();
    QString text = placeText(first);
    auto* const list = m_host.windows().findAs<IPointList>(QLatin1String(m_pointList));
    if (!point.isEmpty() && list != nullptr &&
        !list->selectPoint(first.data(ImportFindingsModel::kLineNumber).toString(), point))
        text += QLatin1Char(' ') + tr("The project does not have the point.");
    m_place->setText(text);
}

/// Where a finding stands, and what it is.
QString DlgImportSummary::placeText(const QModelIndex& first) const
{
    const int last = m_table->model()->columnCount() - 1;
    QString found = first.siblingAtColumn(last).data().toString();
    const QString line = first.data(ImportFindingsModel::kFileLine).toString();
    if (line == QLatin1String("0"))
        return found;
    return (m_isDatabase ? tr("Result %1 of \"%2\": %3") : tr("Line %1 of \"%2\": %3"))
        .arg(line, m_path, found);
}

void DlgImportSummary::copyAll()
{
    QString text = m_numbers->toPlainText() + QLatin1Char('\n');
    if (m_table != nullptr)
        text += QLatin1Char('\n') + tableText(*m_table->model());
    QGuiApplication::clipboard()->setText(text);
}

void DlgImportSummary::openFile()
{
    if (!QDesktopServices::openUrl(QUrl::fromLocalFile(m_path)))
        LumMessageBox::error(this, tr("Open the File"),
                             tr("No program could be started that opens \"%1\".").arg(m_path));
}
