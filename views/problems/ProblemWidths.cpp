#include "views/problems/ProblemWidths.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"
#include "quality/problems/ProblemColumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QSplitter>
#include <QStyledItemDelegate>

#include <algorithm>

namespace {

constexpr int kKinds = 230;
constexpr int kLeastSentence = 400;
constexpr int kLargest = 4000;
constexpr int kWhat = static_cast<int>(ProblemField::What);

/// Of a column that is wider than its use; 0 for any other.
int largestAtFirst(int column)
{
    switch (static_cast<ProblemField>(column)) {
    case ProblemField::Severity: // an icon
        return 36;
    case ProblemField::Kind: // the bar beside the table names the kinds, too
        return 165;
    default:
        return 0;
    }
}

/// Pixels at 100 %.
int unscaled(int pixels)
{
    constexpr int kMany = 1000;
    return pixels * kMany / dpi_scaled(kMany);
}

/// Paints a severity as its icon alone where the column has no room for the word.
class SeverityDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const int text = option->fontMetrics.horizontalAdvance(option->text);
        if (option->decorationSize.width() + text > option->rect.width())
            option->text.clear();
    }
};

} // namespace

ProblemWidths::ProblemWidths(QSplitter& areas, CustomTableWidget& table)
    : QObject(&areas), m_areas(areas), m_table(table), m_handle(areas.handle(1)),
      m_widths(1 + static_cast<std::size_t>(table.model()->columnCount()))
{
    read();
    const int kinds = dpi_scaled(m_widths[0] > 0 ? m_widths[0] : kKinds);
    m_areas.setSizes({kinds, 4 * kinds});
    m_table.setItemDelegateForColumn(static_cast<int>(ProblemField::Severity),
                                     new SeverityDelegate(&m_table));
    m_table.horizontalHeader()->viewport()->installEventFilter(this);
    m_handle->installEventFilter(this);
    connect(&m_areas, &QSplitter::splitterMoved, this, [this](int width) {
        m_widths[0] = unscaled(width);
        fit();
    });
    connect(m_table.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int /*before*/, int width) {
                if (m_isDragging)
                    m_widths[1 + static_cast<std::size_t>(column)] = unscaled(width);
            });
}

void ProblemWidths::read()
{
    std::string_view rest = get_system_ini_parameter().dictionary().text(settings::kProblemWidths);
    for (int& width : m_widths)
        width = std::clamp(basalt::parseInteger(next_word3(rest, ',')), 0, kLargest);
}

void ProblemWidths::store()
{
    std::string text;
    for (const int width : m_widths) {
        if (!text.empty())
            text += ',';
        text += std::to_string(width);
    }
    SystemParameter& settings = get_system_ini_parameter();
    if (settings.dictionary().text(settings::kProblemWidths) == text)
        return;
    settings.dictionary().set(settings::kProblemWidths, text);
    settings.save(); // logs a failure; the widths are then kept for this session only
}

bool ProblemWidths::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_handle &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick))
        m_isDragging = true;
    if (event->type() == QEvent::MouseButtonRelease) {
        m_isDragging = false;
        store();
    }
    return QObject::eventFilter(watched, event);
}

void ProblemWidths::fit()
{
    QHeaderView& header = *m_table.horizontalHeader();
    if (m_isDragging || header.count() == 0)
        return;
    for (int column = 0; column < header.count(); ++column) {
        const int own = m_widths[1 + static_cast<std::size_t>(column)];
        const int largest = largestAtFirst(column);
        if (header.isSectionHidden(column))
            continue; // would have no width when it is shown again
        if (own > 0)
            header.resizeSection(column, dpi_scaled(own));
        else if (largest > 0)
            header.resizeSection(column, std::min(header.sectionSize(column), dpi_scaled(largest)));
    }
    if (m_widths[1 + kWhat] > 0 || m_table.model()->rowCount() == 0)
        return;
    const int others = header.length() - header.sectionSize(kWhat);
    header.resizeSection(
        kWhat, std::max(dpi_scaled(kLeastSentence), m_table.viewport()->width() - others));
}
