#pragma once

class QString;

namespace desktop {

/// Style, palette and icons of the whole program.
/// \param theme "light" or "dark"; anything else follows the desktop
void applyAppearance(const QString& theme);

/// Loads the program's and Qt's texts.
/// \param language such as "zh_CN"; empty takes the system's language
/// \param folder where the program's ".qm" files are
void loadTranslations(const QString& language, const QString& folder);

} // namespace desktop
