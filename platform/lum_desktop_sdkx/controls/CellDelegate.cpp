#include "lum_desktop_sdkx/controls/CellDelegate.h"

#include <QPalette>

namespace {

constexpr int kSaturation = 190; // of 255
constexpr int kBrightness = 160;

} // namespace

void CellDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (option->backgroundBrush.style() == Qt::NoBrush ||
        !option->state.testFlag(QStyle::State_Selected))
        return;
    const int hue = option->backgroundBrush.color().hue();
    option->palette.setColor(QPalette::Highlight, QColor::fromHsv(hue, kSaturation, kBrightness));
}
