#pragma once

#include <QIcon>
#include <QPixmap>

/// The program's icon, a survey flag on a grid of stakes; `size` in logical pixels.
[[nodiscard]] QPixmap programPixmap(int size, double devicePixelRatio = 1);

/// The icon in the sizes that windows and task bars ask for.
[[nodiscard]] QIcon programIcon();
