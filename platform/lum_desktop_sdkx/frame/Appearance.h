#pragma once

class QString;

namespace desktop {

/// Sets style, palette and icons of the whole program.
/// \param theme "light" or "dark"; any other value follows the desktop
void applyAppearance(const QString& theme);

} // namespace desktop
