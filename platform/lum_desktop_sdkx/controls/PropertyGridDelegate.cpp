#include "lum_desktop_sdkx/controls/PropertyGridDelegate.h"

#include "lum_desktop_sdkx/controls/ChoiceBox.h"
#include "lum_desktop_sdkx/controls/PropertyGridInput.h"
#include "lum_desktop_sdkx/controls/PropertyGridModel.h"
#include "lum_desktop_sdkx/dialogs/FileDialog.h"
#include "lum_sdk/DpiScale.h"

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPointer>
#include <QStyle>
#include <QToolTip>
#include <QTreeView>

namespace {

constexpr int kRowPadding = 11;  ///< above and below the text of a row, together
constexpr int kCellPadding = 14; ///< to the right of a caption, before the dividing line
constexpr int kNotePadding = 4;  ///< around a note
constexpr int kNoteFlags = Qt::AlignLeft | Qt::TextWordWrap;

/// Half transparent, so that it suits light and dark rows.
constexpr QRgb kNoteColor = qRgba(0xf0, 0xa0, 0x00, 0x50);

/// Where the text of a note stands, below the caption.
QRect notePlace(const QTreeView& view, const QRect& place)
{
    const int padding = dpi_scaled(kNotePadding);
    return place.adjusted(view.indentation() + padding, padding, -padding, -padding);
}

} // namespace

PropertyGridDelegate::PropertyGridDelegate(PropertyGridModel& model, QObject* parent)
    : QStyledItemDelegate(parent), m_model(model)
{
}

QWidget* PropertyGridDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                                            const QModelIndex& index) const
{
    const PropertyGridRow* const row = m_model.row(index);
    if (row == nullptr)
        return nullptr;
    return row->editor == PropertyGridRow::Editor::Choice ? makeChoiceEditor(parent, index)
                                                          : makeLineEditor(parent, index);
}

QWidget* PropertyGridDelegate::makeChoiceEditor(QWidget* parent, const QModelIndex& index) const
{
    auto* const editor = new ChoiceBox(parent);
    editor->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    for (const PropertyGridChoice& choice : m_model.row(index)->choices)
        editor->addItem(choice.caption, choice.value);
    // A const member cannot send the signals of the base class. The delegate itself is not const.
    auto* const self = const_cast<PropertyGridDelegate*>(this);
    connect(editor, QOverload<int>::of(&QComboBox::activated), self,
            [self, editor] { self->finish(editor); });
    return editor;
}

QWidget* PropertyGridDelegate::makeLineEditor(QWidget* parent, const QModelIndex& index) const
{
    auto* const editor = new QLineEdit(parent);
    const PropertyGridRow& row = *m_model.row(index);
    auto* const self = const_cast<PropertyGridDelegate*>(this);
    connect(editor, &QLineEdit::textEdited, self, [self, row](const QString& text) {
        if (const auto [value, message] = readPropertyGridInput(row, text); message.isEmpty())
            Q_EMIT self->typed(row.key, value);
    });
    if (row.editor != PropertyGridRow::Editor::File)
        return editor;
    const QIcon icon = QIcon::fromTheme(QStringLiteral("document-open"),
                                        editor->style()->standardIcon(QStyle::SP_DirOpenIcon));
    QAction* const action = editor->addAction(icon, QLineEdit::TrailingPosition);
    action->setToolTip(tr("Browse"));
    connect(action, &QAction::triggered, self,
            [self, editor, title = row.caption, filter = row.filter] {
                self->browse(editor, title, filter);
            });
    return editor;
}

void PropertyGridDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    const QString text = index.data(Qt::EditRole).toString();
    if (auto* const line = qobject_cast<QLineEdit*>(editor)) {
        if (line->text() != text)
            line->setText(text);
    } else if (auto* const combo = qobject_cast<QComboBox*>(editor)) {
        combo->setCurrentIndex(combo->findData(text));
    }
}

void PropertyGridDelegate::setModelData(QWidget* editor, QAbstractItemModel* model,
                                        const QModelIndex& index) const
{
    if (const auto* const line = qobject_cast<QLineEdit*>(editor))
        model->setData(index, line->text(), Qt::EditRole);
    else if (const auto* const combo = qobject_cast<QComboBox*>(editor);
             combo != nullptr && combo->currentIndex() >= 0)
        model->setData(index, combo->currentData(), Qt::EditRole);
}

QSize PropertyGridDelegate::sizeHint(const QStyleOptionViewItem& option,
                                     const QModelIndex& index) const
{
    const QSize hint = QStyledItemDelegate::sizeHint(option, index);
    const auto* const view = qobject_cast<const QTreeView*>(option.widget);
    return {hint.width() + dpi_scaled(kCellPadding),
            option.fontMetrics.height() + dpi_scaled(kRowPadding) +
                (view != nullptr ? noteHeight(*view, index) : 0)};
}

bool PropertyGridDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                     const QStyleOptionViewItem& option, const QModelIndex& index)
{
    QStyleOptionViewItem cell(option);
    initStyleOption(&cell, index);
    const QRect room = view->style()->subElementRect(QStyle::SE_ItemViewItemText, &cell, view);
    if (event->type() != QEvent::ToolTip ||
        cell.fontMetrics.horizontalAdvance(cell.text) <= room.width())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QString tip = cell.text;
    if (const QString more = index.data(Qt::ToolTipRole).toString(); !more.isEmpty())
        tip += QLatin1Char('\n') + more;
    QToolTip::showText(event->globalPos(), tip, view);
    return true;
}

void PropertyGridDelegate::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                                const QModelIndex& index) const
{
    QStyleOptionViewItem upper(option);
    if (const auto* const view = qobject_cast<const QTreeView*>(option.widget))
        upper.rect.setHeight(option.rect.height() - noteHeight(*view, index));
    QStyledItemDelegate::updateEditorGeometry(editor, upper, index);
}

int PropertyGridDelegate::noteHeight(const QTreeView& view, const QModelIndex& index) const
{
    const QString note = m_model.note(index);
    if (note.isEmpty())
        return 0;
    const QRect row(0, 0, view.viewport()->width(), 0);
    const QRect text = view.fontMetrics().boundingRect(notePlace(view, row), kNoteFlags, note);
    return text.height() + 2 * dpi_scaled(kNotePadding);
}

void PropertyGridDelegate::drawNote(QPainter& painter, const QTreeView& view, const QRect& place,
                                    const QModelIndex& index) const
{
    painter.fillRect(place, QColor::fromRgba(kNoteColor));
    painter.drawText(notePlace(view, place), kNoteFlags, m_model.note(index));
}

void PropertyGridDelegate::initStyleOption(QStyleOptionViewItem* option,
                                           const QModelIndex& index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    option->decorationPosition = QStyleOptionViewItem::Right;
    if (option->backgroundBrush.style() != Qt::NoBrush)
        option->state &= ~QStyle::State_Selected; // the selection must not hide the mark of a fault
}

bool PropertyGridDelegate::eventFilter(QObject* editor, QEvent* event)
{
    if (m_isBrowsing && event->type() == QEvent::FocusOut)
        return false; // the editor must stay open for the answer of the file dialog
    return QStyledItemDelegate::eventFilter(editor, event);
}

void PropertyGridDelegate::finish(QWidget* editor)
{
    Q_EMIT commitData(editor);
    Q_EMIT closeEditor(editor);
}

void PropertyGridDelegate::browse(QWidget* editor, const QString& title, const QString& filter)
{
    const QPointer<PropertyGridDelegate> alive(this);
    const QPointer<QWidget> open(editor); // the grid may delete it while the dialog is open
    m_isBrowsing = true;
    const QString path = FileDialog::getOpenFileName(editor->window(), title, filter);
    if (alive.isNull())
        return;
    m_isBrowsing = false;
    auto* const line = qobject_cast<QLineEdit*>(open.data());
    if (line == nullptr || path.isEmpty())
        return;
    line->setText(path);
    finish(line);
}
