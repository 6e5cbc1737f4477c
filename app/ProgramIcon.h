#pragma once

#include <QIcon>

/// The program's icon, a survey flag on a grid of stakes, in the sizes that windows and task bars
/// ask for.
[[nodiscard]] QIcon programIcon();
