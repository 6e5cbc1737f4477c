#pragma once

#include <QComboBox>

/// A box with a list of choices that changes only when the user takes one from the open list.
///
/// Arrow keys and letters open the list, Enter or a click takes the choice, Escape leaves the one
/// that was there. The mouse wheel scrolls what is around the box. A text that is too long for the
/// box ends with an ellipsis.
class ChoiceBox : public QComboBox
{
public:
    using QComboBox::QComboBox;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
};
