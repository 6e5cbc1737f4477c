#include "lum_desktop_sdkx/controls/ChoiceBox.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QStylePainter>
#include <QWheelEvent>

namespace {

bool isMove(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown || key == Qt::Key_Home || key == Qt::Key_End;
}

} // namespace

void ChoiceBox::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect place =
        style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    option.currentText =
        option.fontMetrics.elidedText(option.currentText, Qt::ElideRight, place.width());
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void ChoiceBox::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    const bool isText = !text.isEmpty() && text.at(0).isPrint() && !text.at(0).isSpace();
    const bool isShortcut = (event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier)) != 0;
    if (isShortcut || (!isMove(event->key()) && !isText)) {
        QComboBox::keyPressEvent(event);
        return;
    }
    showPopup();
    if (isText)
        view()->keyboardSearch(text);
}

void ChoiceBox::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}
