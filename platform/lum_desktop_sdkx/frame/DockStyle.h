#pragma once

#include <QIcon>
#include <QString>

namespace desktop {

/// Style sheet of the docks: flat tabs, the current one marked in the highlight colour, hairline
/// splitters. All colours come from the palette, light or dark.
[[nodiscard]] QString dockStyle();

/// The cross that closes a tab, in the colour of the palette's text: the one of the icon theme is a
/// red disc, too loud for something that every tab has.
[[nodiscard]] QIcon dockCloseIcon();

} // namespace desktop
