#include "views/tables/ResultMarks.h"

#include "project/DataProcessDataManager.h"
#include "quality/colors/ChosenColors.h"
#include "quality/colors/ColorPalette.h"
#include "quality/QualityLimits.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>

#include <utility>

namespace {

constexpr int kEdgeWidth = 4; // of an icon's 64 pixels: one where a cell shows 16

QIcon iconOf(const QPen& pen, const QBrush& brush)
{
    constexpr int kSide = 64; // pixels; cells show it smaller
    QPixmap icon(kSide, kSide);
    icon.fill(Qt::transparent);
    QPainter painter(&icon);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.drawEllipse(QRectF(icon.rect()).adjusted(10, 10, -10, -10));
    return icon;
}

} // namespace

void ResultMarks::renew(bool areValuesOld)
{
    std::string state = resultMarksState();
    const std::uint64_t revision =
        state.empty() ? 0 : DataProcessDataManager::instance().surveyPoints().revision();
    if (!areValuesOld && state == m_state && revision == m_revision)
        return;
    m_state = std::move(state);
    m_revision = revision;
    m_colors = {};
    m_circles.clear();
    if (m_state.empty())
        return;
    DataProcessDataManager& manager = DataProcessDataManager::instance();
    m_colors = colorsOf(chosenColoring(), manager.surveyPoints(), manager.qualityLimits());
    for (const QRgb color : m_colors.colors())
        m_circles.push_back(
            iconOf(QPen(QColor::fromRgb(palette::kEdge), kEdgeWidth), QColor::fromRgb(color)));
    m_ring = iconOf(QPen(QColor::fromRgb(palette::kOthers), 6), Qt::NoBrush);
}

QVariant ResultMarks::look(const SurveyPoint* result, int role) const
{
    const bool isCircle = role == Qt::DecorationRole;
    if (!isCircle && role != Qt::ToolTipRole)
        return {};
    if (result == nullptr)
        return isCircle ? QVariant(m_ring)
                        : QCoreApplication::translate("DesignTable", "not surveyed");
    const std::uint8_t place = m_colors.classOf()(*result);
    return isCircle ? QVariant(m_circles[place]) : QVariant(m_colors.text(place));
}

std::string resultMarksState()
{
    return DataProcessDataManager::hasInstance()
               ? coloringState(DataProcessDataManager::instance().qualityParameters())
               : std::string();
}
