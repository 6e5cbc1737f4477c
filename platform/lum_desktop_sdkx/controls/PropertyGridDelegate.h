#pragma once

#include <QStyledItemDelegate>

class PropertyGridModel;
class QTreeView;

/// Makes the editors of a property grid and lays out its cells.
class PropertyGridDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit PropertyGridDelegate(PropertyGridModel& model, QObject* parent = nullptr);

    [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                        const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override;
    /// Also tells a value that is cut off in its cell.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option,
                                 const QModelIndex& index) const override;
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

    /// The height of the sentence under a row; 0 without one.
    [[nodiscard]] int noteHeight(const QTreeView& view, const QModelIndex& index) const;
    void drawNote(QPainter& painter, const QTreeView& view, const QRect& place,
                  const QModelIndex& index) const;

Q_SIGNALS:
    /// The text in the editor of a row is a good value.
    void typed(const QString& key, const QString& value);

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
    bool eventFilter(QObject* editor, QEvent* event) override;

private:
    [[nodiscard]] QWidget* makeChoiceEditor(QWidget* parent, const QModelIndex& index) const;
    [[nodiscard]] QWidget* makeLineEditor(QWidget* parent, const QModelIndex& index) const;
    void finish(QWidget* editor);
    void browse(QWidget* editor, const QString& title, const QString& filter);

    PropertyGridModel& m_model; // belongs to the grid, as this does
    bool m_isBrowsing = false;
};
