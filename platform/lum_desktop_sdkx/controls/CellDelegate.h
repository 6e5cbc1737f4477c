#pragma once

#include <QStyledItemDelegate>

/// Paints the cells of tables. A selected cell with a colour of its own keeps the hue of it, dark
/// enough for the text of selected cells: the worst row is mostly the selected one.
class CellDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
