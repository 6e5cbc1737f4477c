#pragma once

class QString;

namespace desktop {

/// Style, palette and icons of the whole program.
/// \param theme "light" or "dark"; anything else follows the desktop
void applyAppearance(const QString& theme);

} // namespace desktop
