#pragma once

#include <QTreeView>

class PropertyGridModel;

/// The tree of a property grid: group headers across both columns, fine lines between the rows,
/// one click to edit, Tab and Shift+Tab to the next and previous value.
class PropertyGridView : public QTreeView
{
    Q_OBJECT

public:
    explicit PropertyGridView(QWidget* parent = nullptr);

    /// Takes what stands in the open editor, if there is one, and leaves it open.
    void commitEditor();

    /// Groups start open and span both columns; called after the model has new rows.
    void spanGroups();

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void drawBranches(QPainter* painter, const QRect& rect,
                      const QModelIndex& index) const override;
    [[nodiscard]] QModelIndex moveCursor(CursorAction action,
                                         Qt::KeyboardModifiers modifiers) override;
    bool focusNextPrevChild(bool next) override;

private:
    void handleClick(const QModelIndex& index);
    [[nodiscard]] QModelIndex neighbourValue(bool next) const;
    void drawGroup(QPainter* painter, const QStyleOptionViewItem& option,
                   const QModelIndex& index) const;
};
