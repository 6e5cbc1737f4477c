#pragma once

#include <QTreeView>

class PropertyGridModel;

/// The view of a property grid: group headers across both columns, thin lines between the rows,
/// and under a row the sentence about its value. One click edits a value, Tab and Shift+Tab go to
/// the next and the previous one.
class PropertyGridView : public QTreeView
{
    Q_OBJECT

public:
    explicit PropertyGridView(QWidget* parent = nullptr);

    /// Enters the text of an open editor and leaves the editor open.
    void commitEditor();

    /// The value of the current row to the clipboard, as it is shown.
    void copyValue();
    /// All rows that are shown, in open groups or not: caption, tab, value.
    void copyAll();

    /// Opens the groups and lets them span both columns. Called after the model got new rows.
    void spanGroups();

    /// A few rows: the grid takes the room that is there, but a low dialog need not scroll for it.
    [[nodiscard]] QSize sizeHint() const override;

    /// None: what is typed into a read-only row would go on into the editor of the row it finds.
    void keyboardSearch(const QString& /*text*/) override {}

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
