#pragma once

#include <QIcon>
#include <QString>

namespace ads {
class CDockManager;
} // namespace ads

namespace desktop {

/// The style sheet of the docks: flat tabs, the current tab in the highlight colour, thin
/// splitters. All colours come from the palette, light or dark.
[[nodiscard]] QString dockStyle();

/// The cross that closes a tab, in the text colour of the palette. The icon theme's own is a red
/// disc, which is too striking on every tab.
[[nodiscard]] QIcon dockCloseIcon();

/// From now on the border of the docks shows where the keyboard focus is.
void showDockFocus(ads::CDockManager& docks);

} // namespace desktop
