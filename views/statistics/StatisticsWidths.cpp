#include "views/statistics/StatisticsWidths.h"

#include "basalt_utilities/KeyList.h"
#include "basalt_utilities/Numbers.h"
#include "lum_desktop_sdkx/controls/CustomTableWidget.h"
#include "lum_sdk/DpiScale.h"
#include "lum_sdk/files/SystemDictionaries.h"
#include "protocol/StatusKeys.h"
#include "reports/StatisticsColumns.h"

#include <QEvent>
#include <QHeaderView>
#include <QSplitter>

#include <algorithm>
#include <string>

namespace {

constexpr int kWhole = 1000;
constexpr int kTableAtFirst = 550;
constexpr int kLargest = 4000;
constexpr int kNameAtFirst = 160; // at most, of the groups' names

/// Pixels at 100 %.
int unscaled(int pixels)
{
    return pixels * kWhole / dpi_scaled(kWhole);
}

} // namespace

StatisticsWidths::StatisticsWidths(QSplitter& areas, CustomTableWidget& table)
    : QObject(&areas), m_areas(areas), m_table(table), m_handle(areas.handle(1)),
      m_widths(2 + statisticsColumns(true).size())
{
    read();
    const int share = m_widths[0] > 0 ? m_widths[0] : kTableAtFirst;
    m_areas.setSizes({share * kWhole, (kWhole - share) * kWhole});
    m_table.horizontalHeader()->viewport()->installEventFilter(this);
    m_handle->installEventFilter(this);
    connect(&m_areas, &QSplitter::splitterMoved, this, [this](int width) {
        m_widths[0] = std::clamp(width * kWhole / std::max(1, m_areas.width()), 1, kWhole - 1);
    });
    connect(m_table.horizontalHeader(), &QHeaderView::sectionResized, this,
            [this](int column, int /*before*/, int width) {
                if (m_isDragging)
                    m_widths[1 + static_cast<std::size_t>(column)] = unscaled(width);
            });
}

void StatisticsWidths::read()
{
    std::string_view rest =
        get_system_ini_parameter().dictionary().text(settings::kStatisticsWidths);
    for (int& width : m_widths)
        width = std::clamp(basalt::parseInteger(next_word3(rest, ',')), 0, kLargest);
    m_widths[0] = std::min(m_widths[0], kWhole - 1);
}

void StatisticsWidths::store()
{
    std::string text;
    for (const int width : m_widths) {
        if (!text.empty())
            text += ',';
        text += std::to_string(width);
    }
    SystemParameter& settings = get_system_ini_parameter();
    if (settings.dictionary().text(settings::kStatisticsWidths) == text)
        return;
    settings.dictionary().set(settings::kStatisticsWidths, text);
    settings.save(); // logs a failure; the widths are then kept for this session only
}

bool StatisticsWidths::eventFilter(QObject* watched, QEvent* event)
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

void StatisticsWidths::fit()
{
    QHeaderView& header = *m_table.horizontalHeader();
    for (int column = 0; column < header.count(); ++column) {
        const int own = m_widths[1 + static_cast<std::size_t>(column)];
        if (own > 0)
            header.resizeSection(column, dpi_scaled(own));
    }
    if (header.count() > 0 && m_widths[1] == 0) {
        m_table.widenColumn(0);
        header.resizeSection(0, std::min(header.sectionSize(0), dpi_scaled(kNameAtFirst)));
    }
}
