#pragma once

#include <QSize>

class QWidget;

/// Windows on small screens: a scale of 200 % leaves 683 x 384 pixels of a common laptop's screen.
namespace desktop {

/// The largest size of a window's inside with which it fits on its screen together with its frame.
[[nodiscard]] QSize largestSize(const QWidget& window);

/// Makes the window as small as its screen, and moves it there when a part of it lies outside of
/// all screens. A maximised window, and one that fills the screen, stay as they are.
void fitToScreen(QWidget& window);

} // namespace desktop
